// SPDX-License-Identifier: MIT
#include "exchange/dump/text.h"

#include "value/value_syntax.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace sandbox {
namespace {

constexpr std::string_view kRootPaths[] = {"Device.", "InternetGatewayDevice."};

struct Line {
    std::string_view path;
    std::string_view value;
    bool apart; // a blank stands before "="
};

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// Nothing where the line is not of the form. The value is all that stands behind "=".
std::optional<Line> split(std::string_view line) {
    const size_t equals = line.find('=');
    const std::string_view path = trimmed(line.substr(0, std::min(equals, line.size())));
    if (equals == std::string_view::npos || path.find('.') == std::string_view::npos ||
        path.find_first_of(" \t\"'") != std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view value = line.substr(equals + 1);
    value.remove_suffix(value.ends_with('\r') ? 1 : 0);
    return Line{path, value, isBlank(line[equals - 1])};
}

bool isComment(std::string_view line) {
    return trimmed(line).starts_with('#');
}

bool hasComment(std::string_view text) {
    for (; !text.empty(); text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1)) {
        if (isComment(text.substr(0, text.find('\n')))) {
            return true;
        }
    }
    return false;
}

// Calls `take` with every line that is neither blank nor a comment, and its number.
void eachLine(std::string_view text, const std::function<void(std::string_view line, size_t number)> &take) {
    for (size_t number = 1; !text.empty(); ++number) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!trimmed(line).empty() && !isComment(line)) {
            take(line, number);
        }
    }
}

// What only gateway files have: recordings and annotations.
bool isOwn(std::string_view line) {
    const std::string_view start = trimmed(line.substr(0, line.find('=')));
    return start.starts_with('@') || start.find(" [") != std::string_view::npos;
}

// What none of them has: "path=value", and a value of a pattern.
bool isForeign(const Line &line) {
    return !line.apart || line.path.find('{') != std::string_view::npos;
}

bool isBelowRoot(std::string_view line) {
    return std::any_of(std::begin(kRootPaths), std::end(kRootPaths),
                       [line](std::string_view root) { return trimmed(line).starts_with(root); });
}

// How the values of a file are written.
struct Manner {
    bool quotes = true; // all of them in quotes
    bool blank = true;  // one in front of each that has none before its "="
};

// Without the blank that belongs to "=".
std::string_view valueOf(const Line &line, const Manner &manner) {
    const bool blank = !line.value.empty() && isBlank(line.value.front()) && (line.apart || manner.blank);
    return line.value.substr(blank ? 1 : 0);
}

bool isQuoted(std::string_view value) {
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
}

Manner mannerOf(std::string_view text) {
    Manner manner;
    eachLine(text, [&](std::string_view line, size_t /*number*/) {
        const std::optional<Line> parts = split(line);
        manner.blank =
            manner.blank && (!parts || parts->apart || parts->value.empty() || isBlank(parts->value.front()));
    });
    eachLine(text, [&](std::string_view line, size_t /*number*/) {
        const std::optional<Line> parts = split(line);
        manner.quotes = manner.quotes && (!parts || isQuoted(valueOf(*parts, manner)));
    });
    return manner;
}

} // namespace

TextForm textFormOf(std::string_view text) {
    bool below = false;
    bool own = false;
    bool foreign = false;
    size_t lines = 0;
    size_t pairs = 0;
    eachLine(text, [&](std::string_view line, size_t /*number*/) {
        const std::optional<Line> parts = split(line);
        below = lines == 0 ? isBelowRoot(line) : below;
        own = own || isOwn(line);
        foreign = foreign || (parts && isForeign(*parts));
        ++lines;
        pairs += parts ? 1 : 0;
    });
    if (!below || own || (!foreign && pairs < lines)) {
        return TextForm::Other;
    }
    return !foreign && hasComment(text) ? TextForm::Either : TextForm::Dump;
}

Dump readTextDump(std::string_view text) {
    const Manner manner = mannerOf(text);
    Dump dump;
    eachLine(text, [&](std::string_view line, size_t number) {
        const std::optional<Line> parts = split(line);
        if (!parts) {
            ++dump.report.values;
            dump.report.count(Reason::TornRow, "line " + std::to_string(number));
            return;
        }
        const std::string_view value = valueOf(*parts, manner);
        DumpRow &row = dump.rows.emplace_back();
        row.path = parts->path;
        row.value = manner.quotes ? value.substr(1, value.size() - 2) : value;
        row.line = number;
    });
    return dump;
}

} // namespace sandbox
