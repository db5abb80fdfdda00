// SPDX-License-Identifier: MIT
#include "pages/text.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <langinfo.h>

namespace cli {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

// Endings of the names of parameters whose values are free text.
constexpr std::string_view kFreeText[] = {
    "Name",         "Alias", "SSID",  "Description", "Passphrase", "Password", "Key",    "Version",
    "SerialNumber", "PIN",   "Label", "Username",    "Contact",    "Location", "Secret",
};

bool isFreeText(std::string_view parameter) {
    return std::any_of(std::begin(kFreeText), std::end(kFreeText),
                       [&](std::string_view ending) { return parameter.ends_with(ending); });
}

// A decimal number as a program would write it: no sign but '-', no leading zeros. Anything else may mean its digits.
template <typename Number>
bool readNumber(std::string_view value, Number &number) {
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() && end == value.data() + value.size() && std::to_string(number) == value;
}

// Characters beyond ASCII that a terminal acts on, or shows nothing of: C1 controls, other line ends, marks and
// overrides of direction, invisible ones.
struct Span {
    uint32_t first, last;
};
constexpr Span kInvisible[] = {{0x80, 0x9f},     {0x61c, 0x61c},   {0x200b, 0x200f},  {0x2028, 0x202e},
                               {0x2060, 0x206f}, {0xfeff, 0xfeff}, {0xe0000, 0xe007f}};

// The length of the character that valid UTF-8 begins with.
size_t lengthOf(unsigned char first) {
    return first < 0x80 ? 1 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
}

uint32_t codePoint(std::string_view character) {
    uint32_t code = static_cast<unsigned char>(character[0]) & (0xffU >> (character.size() + 1));
    for (const char c : character.substr(1)) {
        code = (code << 6) | (static_cast<unsigned char>(c) & 0x3fU);
    }
    return code;
}

bool localeIsUtf8() {
    return std::string_view(nl_langinfo(CODESET)) == "UTF-8";
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

void useUtf8Locale() {
    setlocale(LC_CTYPE, "");
    if (!localeIsUtf8()) {
        setlocale(LC_CTYPE, "C.UTF-8");
    }
}

bool isUtf8(std::string_view text) {
    try {
        static_cast<void>(Json(text).dump());
        return true;
    } catch (const Json::type_error &) {
        return false;
    }
}

std::string hexOf(std::string_view text) {
    std::string hex;
    hex.reserve(2 * text.size());
    for (const unsigned char byte : text) {
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 0xf];
    }
    return hex;
}

std::string printable(std::string_view text) {
    const bool utf8 = localeIsUtf8() && isUtf8(text);
    std::string result;
    for (size_t at = 0; at < text.size();) {
        const std::string_view character = text.substr(at, utf8 ? lengthOf(static_cast<unsigned char>(text[at])) : 1);
        at += character.size();
        if (isShown(character)) {
            result += character;
        } else {
            for (const char &byte : character) {
                result += "\\x" + hexOf({&byte, 1});
            }
        }
    }
    return result;
}

void put(Json &object, const std::string &key, const Json &value) {
    object[key] = value;
    if (value.is_string() && !isUtf8(value.get_ref<const std::string &>())) {
        object[key + "_hex"] = hexOf(value.get_ref<const std::string &>());
    }
}

Json typed(std::string_view parameter, std::string_view value) {
    if (isFreeText(parameter)) {
        return value;
    }
    if (value == "true" || value == "false") {
        return value == "true";
    }
    int64_t number = 0;
    uint64_t large = 0;
    if (readNumber(value, number)) {
        return number;
    }
    return readNumber(value, large) ? Json(large) : Json(value);
}

std::string dumped(const Json &json, int indent) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

} // namespace cli
