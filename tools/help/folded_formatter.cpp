// SPDX-License-Identifier: MIT
#include "help/folded_formatter.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace help {
namespace {

constexpr size_t kWidth = 80;
constexpr const char *kExamples = "Examples:";
constexpr size_t kExampleIndent = 6;

// Where the rest of a line stands: below what is behind a gap of blanks, else where the line begins.
size_t indentOf(const std::string &line) {
    const size_t begin = line.find_first_not_of(' ');
    const size_t gap = line.find("  ", begin);
    return line.find_first_not_of(' ', std::min(gap == std::string::npos ? begin : gap, line.size()));
}

bool isQuoted(std::string_view example, size_t at) {
    return std::count(example.begin(), example.begin() + static_cast<ptrdiff_t>(at), '\'') % 2 != 0;
}

// The last blank at which the line can end in so many columns; npos where it has a single word.
size_t lastBlank(const std::string &line, size_t room, size_t indent, bool example) {
    size_t blank = line.rfind(' ', room);
    while (example && blank != std::string::npos && isQuoted(line, blank)) {
        blank = blank == 0 ? std::string::npos : line.rfind(' ', blank - 1);
    }
    return blank == std::string::npos || blank <= indent ? std::string::npos : blank;
}

std::string folded(std::string line, bool example) {
    constexpr std::string_view kGoesOn = " \\";
    const size_t indent = example ? kExampleIndent : indentOf(line);
    const size_t room = kWidth - (example ? kGoesOn.size() : 0);
    std::string result;
    while (line.size() > kWidth) {
        const size_t blank = lastBlank(line, room, indent, example);
        if (blank == std::string::npos) {
            break;
        }
        result += line.substr(0, blank) + std::string(example ? kGoesOn : "") + "\n";
        line.replace(0, blank + 1, indent, ' ');
    }
    return result + line;
}

} // namespace

std::string FoldedFormatter::make_help(const CLI::App *app, std::string name, CLI::AppFormatMode mode) const {
    std::istringstream lines(CLI::Formatter::make_help(app, std::move(name), mode));
    std::string result;
    bool examples = false;
    for (std::string line; std::getline(lines, line);) {
        examples = line == kExamples || (examples && !line.empty());
        result += folded(line, examples) + "\n";
    }
    return result;
}

} // namespace help
