// SPDX-License-Identifier: MIT
#include "words.h"

#include <algorithm>
#include <charconv>

namespace cli {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

// Endings of the names of parameters whose values are free text.
constexpr std::string_view kFreeText[] = {
    "Name",    "Alias",        "SSID", "Description", "Passphrase", "Password", "Key",
    "Version", "SerialNumber", "PIN",  "Label",       "Username",   "Contact",  "Location",
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

} // namespace

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
    const bool utf8 = isUtf8(text);
    std::string result;
    unsigned char before = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool control = byte < ' ' || byte == 0x7f || (before == 0xc2 && byte < 0xa0);
        if (control || (byte >= 0x80 && !utf8)) {
            result += "\\x" + hexOf({&c, 1});
        } else {
            result += c;
        }
        before = byte;
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
