// SPDX-License-Identifier: MIT
#include "exchange/text_encoding.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace sandbox {
namespace {

constexpr char32_t kReplacement = 0xfffd;

class Utf16 {
  public:
    Utf16(std::string_view bytes, bool bigEndian) : bytes_(bytes), bigEndian_(bigEndian) {}

    std::string toUtf8() {
        std::string out;
        while (at_ + 1 < bytes_.size()) {
            appendUtf8(out, next());
        }
        return out;
    }

  private:
    char32_t unit(size_t at) const {
        const auto low = static_cast<uint8_t>(bytes_[at + (bigEndian_ ? 1 : 0)]);
        const auto high = static_cast<uint8_t>(bytes_[at + (bigEndian_ ? 0 : 1)]);
        return static_cast<char32_t>(high << 8 | low);
    }

    char32_t next() {
        const char32_t first = unit(at_);
        at_ += 2;
        if (first < 0xd800 || first > 0xdfff) {
            return first;
        }
        const char32_t second = at_ + 1 < bytes_.size() ? unit(at_) : 0;
        if (first > 0xdbff || second < 0xdc00 || second > 0xdfff) {
            return kReplacement;
        }
        at_ += 2;
        return 0x10000 + ((first - 0xd800) << 10) + (second - 0xdc00);
    }

    std::string_view bytes_;
    bool bigEndian_;
    size_t at_ = 0;
};

std::string decoded(std::string bytes) {
    const std::string_view view = bytes;
    if (view.starts_with("\xef\xbb\xbf")) {
        return bytes.substr(3);
    }
    if (view.starts_with("\xff\xfe") || view.starts_with("\xfe\xff")) {
        return Utf16(view.substr(2), view.front() == '\xfe').toUtf8();
    }
    return bytes;
}

} // namespace

void appendUtf8(std::string &out, char32_t code) {
    const auto tail = [&out, code](unsigned shift) { out += static_cast<char>(0x80 | ((code >> shift) & 0x3f)); };
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xc0 | (code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        out += static_cast<char>(0xe0 | (code >> 12));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xf0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::string plainText(std::string bytes) {
    std::string text = decoded(std::move(bytes));
    if (text.find('\n') == std::string::npos) {
        std::replace(text.begin(), text.end(), '\r', '\n');
    }
    return text;
}

} // namespace sandbox
