// SPDX-License-Identifier: MIT
// The lines of a gateway file, as far as captures need them.
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

// Empty for a line that gives no parameter a value: comments, objects, patterns, recordings. Throws Usage for one that
// is none of these.
std::optional<Line> parameterOf(std::string_view text);

} // namespace pages::capture
