// SPDX-License-Identifier: MIT
// How the lines of a gateway file are written, as far as captures need them; file.h reads them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pages::capture {

struct Line {
    std::string object; // with a final dot
    std::string parameter;
    std::string annotations; // what stands in square brackets
    std::string value;
};

std::string parameterLine(const Line &line);
std::string fileLine(const std::string &path, const std::string &content);
std::string answerLine(const std::string &command, int exitCode, const std::string &output);

// Whether the text is digits, as instance numbers are.
bool isNumber(std::string_view text);

// The text without its escapes. Empty for an unknown one, and for a NUL byte.
std::optional<std::string> unescaped(std::string_view text);

} // namespace pages::capture
