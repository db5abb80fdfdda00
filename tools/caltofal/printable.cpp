// SPDX-License-Identifier: MIT
#include "caltofal/printable.h"

#include "pages/text.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <langinfo.h>

namespace cli {
namespace {

// Characters beyond ASCII that a terminal acts on, or shows nothing of: C1 controls, other line ends, marks and
// overrides of direction, invisible ones.
struct Span {
    uint32_t first, last;
};
constexpr Span kInvisible[] = {{0x80, 0x9f},     {0x61c, 0x61c},   {0x200b, 0x200f},  {0x2028, 0x202e},
                               {0x2060, 0x206f}, {0xfeff, 0xfeff}, {0xe0000, 0xe007f}};

uint32_t codePoint(std::string_view character) {
    uint32_t code = static_cast<unsigned char>(character[0]) & (0xffU >> (character.size() + 1));
    for (const char c : character.substr(1)) {
        code = (code << 6) | (static_cast<unsigned char>(c) & 0x3fU);
    }
    return code;
}

// One character of valid UTF-8, or a byte of something else.
bool isShown(std::string_view character) {
    const auto byte = static_cast<unsigned char>(character[0]);
    if (character.size() == 1) {
        return byte >= ' ' && byte < 0x7f;
    }
    const uint32_t code = codePoint(character);
    return std::none_of(std::begin(kInvisible), std::end(kInvisible),
                        [&](const Span &span) { return code >= span.first && code <= span.last; });
}

} // namespace

bool localeIsUtf8() {
    return std::string_view(nl_langinfo(CODESET)) == "UTF-8";
}

void useUtf8Locale() {
    setlocale(LC_CTYPE, "");
    if (!localeIsUtf8()) {
        setlocale(LC_CTYPE, "C.UTF-8");
    }
}

std::string printable(std::string_view text) {
    const bool utf8 = localeIsUtf8() && pages::isUtf8(text);
    std::string result;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, utf8 ? pages::utf8Length(text) : 1);
        text.remove_prefix(character.size());
        if (isShown(character)) {
            result += character;
        } else {
            for (const char &byte : character) {
                result += "\\x" + pages::hexOf({&byte, 1});
            }
        }
    }
    return result;
}

} // namespace cli
