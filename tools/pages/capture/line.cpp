// SPDX-License-Identifier: MIT
#include "pages/capture/line.h"

#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace pages::capture {
namespace {

struct Escape {
    char letter, byte;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}};

void appendEscaped(std::string &out, char byte, bool quotes) {
    for (const Escape &row : kEscapes) {
        if (row.byte == byte && (quotes || byte != '"')) {
            out += {'\\', row.letter};
            return;
        }
    }
    const bool control = static_cast<unsigned char>(byte) < ' ' || byte == 0x7f;
    out += control ? "\\x" + hexOf({&byte, 1}) : std::string(1, byte);
}

std::string escaped(std::string_view text, bool quotes) {
    std::string out;
    while (!text.empty()) {
        const size_t length = utf8Length(text);
        if (length == 1) {
            appendEscaped(out, text.front(), quotes);
        } else {
            out += length == 0 ? "\\x" + hexOf(text.substr(0, 1)) : std::string(text.substr(0, length));
        }
        text.remove_prefix(std::max<size_t>(length, 1));
    }
    if (!quotes && out.ends_with(' ')) {
        out.replace(out.size() - 1, 1, "\\x20"); // nobody would see it at the end
    }
    return out;
}

// A byte as two digits; NUL, which no value holds, for anything else.
char hexByte(std::string_view digits) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    const bool whole = digits.size() == 2 && error == std::errc() && end == digits.data() + 2;
    return whole ? static_cast<char>(value) : '\0';
}

std::string withValue(const std::string &name, const std::string &value) {
    return name + (value.empty() ? " =" : " = " + escaped(value, false)) + "\n";
}

std::string quotedName(const std::string &name) {
    return "\"" + escaped(name, true) + "\"";
}

} // namespace

std::string parameterLine(const Line &line) {
    const std::string annotations = line.annotations.empty() ? "" : " [" + line.annotations + "]";
    return withValue(line.object + line.parameter + annotations, line.value);
}

std::string fileLine(const std::string &path, const std::string &content) {
    return withValue("@file " + quotedName(path), content);
}

std::string answerLine(const std::string &command, int exitCode, const std::string &output) {
    return withValue("@answer " + quotedName(command) + " " + std::to_string(exitCode), output);
}

bool isNumber(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

std::optional<std::string> unescaped(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            out += text[i];
            continue;
        }
        const char letter = ++i < text.size() ? text[i] : '\0';
        char byte = '\0';
        if (letter == 'x') {
            byte = hexByte(text.substr(i + 1, 2));
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

} // namespace pages::capture
