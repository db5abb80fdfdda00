// SPDX-License-Identifier: MIT
#include "pages/capture/line.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
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

std::string unescaped(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out += text[i];
            continue;
        }
        const char letter = text[++i];
        unsigned byte = 0;
        if (letter == 'x') {
            const std::string_view digits = text.substr(i + 1, 2);
            std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
            i += digits.size();
        }
        for (const Escape &row : kEscapes) {
            byte = row.letter == letter ? static_cast<unsigned char>(row.byte) : byte;
        }
        out += static_cast<char>(byte);
    }
    return out;
}

std::string withValue(const std::string &name, const std::string &value) {
    return name + (value.empty() ? " =" : " = " + escaped(value, false)) + "\n";
}

std::string quotedName(const std::string &name) {
    return "\"" + escaped(name, true) + "\"";
}

// The length of "[...]" at the front of the text; brackets in quotes do not end it. 0 when it does not end.
size_t annotationsLength(std::string_view text) {
    bool quotes = false;
    for (size_t i = 1; i < text.size(); ++i) {
        if (quotes && text[i] == '\\') {
            ++i;
        } else if (text[i] == '"') {
            quotes = !quotes;
        } else if (text[i] == ']' && !quotes) {
            return i + 1;
        }
    }
    return 0;
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

std::optional<Line> parameterOf(std::string_view text) {
    const std::string whole(text);
    if (text.empty() || text.front() == '#' || text.front() == '@') {
        return std::nullopt;
    }
    const std::string_view path = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(path.size() + 1, text.size()));
    if (path.ends_with('.') || path.find("{i}") != std::string_view::npos) {
        return std::nullopt;
    }
    Line line;
    const size_t dot = path.rfind('.');
    line.object = path.substr(0, dot + 1);
    line.parameter = path.substr(dot + 1);
    if (text.starts_with('[')) {
        const size_t length = annotationsLength(text);
        line.annotations = length > 1 ? text.substr(1, length - 2) : "";
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    if (dot == std::string_view::npos || !text.starts_with('=')) {
        throw Usage(inQuotes(whole) + " is not a line of a gateway file");
    }
    line.value = unescaped(text.substr(std::min<size_t>(2, text.size())));
    return line;
}

} // namespace pages::capture
