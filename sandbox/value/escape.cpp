// SPDX-License-Identifier: MIT
#include "value/escape.h"

#include <charconv>
#include <cstdint>
#include <cstdio>

namespace sandbox {
namespace {

constexpr size_t kShortLength = 64;

struct Escape {
    char letter;
    char byte;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}};

bool isControl(char c) {
    return static_cast<uint8_t>(c) < 0x20 || c == 0x7f;
}

void appendHex(std::string &out, char byte) {
    char text[5];
    snprintf(text, sizeof(text), "\\x%02X", static_cast<uint8_t>(byte));
    out += text;
}

void appendEscaped(std::string &out, char byte, bool quotes) {
    for (const Escape &row : kEscapes) {
        if (row.byte == byte && (byte != '"' || quotes)) {
            out += '\\';
            out += row.letter;
            return;
        }
    }
    if (isControl(byte)) {
        appendHex(out, byte);
    } else {
        out += byte;
    }
}

std::string escaped(std::string_view text, bool quotes) {
    std::string out;
    while (!text.empty()) {
        const size_t length = utf8Length(text);
        if (length == 0) {
            appendHex(out, text.front());
        } else if (length == 1) {
            appendEscaped(out, text.front(), quotes);
        } else {
            out += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return out;
}

// The byte after "\x"; -1 when there are no two digits.
int hexByte(std::string_view digits) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return digits.size() == 2 && error == std::errc() && end == digits.data() + 2 ? static_cast<int>(value) : -1;
}

} // namespace

size_t utf8Length(std::string_view text) {
    const auto byte = [text](size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t lead = byte(0);
    const size_t length = lead < 0x80 ? 1 : lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : lead < 0xf5 ? 4 : 0;
    if (length == 0 || text.size() < length) {
        return 0;
    }
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80) {
            return 0;
        }
    }
    const bool outside = (lead == 0xe0 && byte(1) < 0xa0) || (lead == 0xed && byte(1) > 0x9f) ||
                         (lead == 0xf0 && byte(1) < 0x90) || (lead == 0xf4 && byte(1) > 0x8f);
    return outside ? 0 : length;
}

bool isCleanText(std::string_view text) {
    while (!text.empty()) {
        const size_t length = utf8Length(text);
        const char c = text.front();
        if (length == 0 || (isControl(c) && c != '\t' && c != '\n' && c != '\r')) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::optional<std::string> unescape(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            out += text[i];
            continue;
        }
        const char letter = ++i < text.size() ? text[i] : '\0';
        char byte = '\0';
        if (letter == 'x') {
            const int value = hexByte(text.substr(i + 1, 2));
            byte = value > 0 ? static_cast<char>(value) : '\0';
            i += 2;
        }
        for (const Escape &row : kEscapes) {
            byte = row.letter == letter ? row.byte : byte;
        }
        if (byte == '\0') {
            return std::nullopt;
        }
        out += byte;
    }
    return out;
}

std::string escapeValue(std::string_view value) {
    std::string out = escaped(value, false);
    if (out.ends_with(' ')) {
        out.replace(out.size() - 1, 1, "\\x20");
    }
    return out;
}

std::string inQuotes(std::string_view text) {
    return '"' + escaped(text, true) + '"';
}

std::string quotedShort(std::string_view text) {
    if (text.size() <= kShortLength) {
        return inQuotes(text);
    }
    return inQuotes(text.substr(0, kShortLength)) + "...";
}

std::string bytesOfHex(std::string_view digits) {
    std::string bytes;
    for (size_t i = 0; i + 1 < digits.size(); i += 2) {
        unsigned byte = 0;
        std::from_chars(digits.data() + i, digits.data() + i + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string hexOf(std::string_view bytes) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
    }
    return hex;
}

} // namespace sandbox
