// SPDX-License-Identifier: MIT
// Most parameters of an answer are none that a page reads: a set of names that rules almost all of them out without a
// comparison.
#pragma once

#include <cstdint>

namespace frame {

// A bit for each combination of two first characters. Names have at least one character, or stand in a larger buffer.
class NameFilter {
  public:
    constexpr void add(const char *name) { bits_ |= uint32_t{1} << bucket(name); }
    // False: no such name was added.
    [[nodiscard]] constexpr bool mayHold(const char *name) const { return ((bits_ >> bucket(name)) & 1) != 0; }

  private:
    static constexpr uint32_t bucket(const char *name) {
        return (3U * static_cast<unsigned char>(name[0]) + static_cast<unsigned char>(name[1])) % 32;
    }

    uint32_t bits_ = 0;
};

} // namespace frame
