// SPDX-License-Identifier: MIT
// The bytes of one fuzzed input, taken piece by piece; what is beyond the end reads as zero and "".
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace fuzz {

class Bytes {
  public:
    Bytes(const uint8_t *data, size_t size) : rest_(reinterpret_cast<const char *>(data), size) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }

    uint8_t byte() {
        const auto value = rest_.empty() ? '\0' : rest_.front();
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        return static_cast<uint8_t>(value);
    }

    // Up to a byte 0, which is dropped, or at most `longest` bytes.
    std::string text(size_t longest = SIZE_MAX) {
        std::string result(rest_.substr(0, rest_.substr(0, longest).find('\0')).substr(0, longest));
        rest_.remove_prefix(result.size());
        rest_.remove_prefix(!rest_.empty() && rest_.front() == '\0' ? 1 : 0);
        return result;
    }

    // All that is left, zeros included.
    std::string rest() { return std::string(std::exchange(rest_, {})); }

  private:
    std::string_view rest_;
};

} // namespace fuzz
