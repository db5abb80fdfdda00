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
};

// Nothing where the line is not of the form.
std::optional<Line> split(std::string_view line) {
    const size_t equals = line.find('=');
    const std::string_view path = trimmed(line.substr(0, std::min(equals, line.size())));
    if (equals == std::string_view::npos || path.find('.') == std::string_view::npos || path.ends_with('.') ||
        path.find_first_of(" \t{}\"'") != std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view value = line.substr(equals + 1);
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    value.remove_suffix(value.ends_with('\r') ? 1 : 0);
    return Line{path, value};
}

// Calls `take` with every line that is not blank, and its number.
void eachLine(std::string_view text, const std::function<void(std::string_view line, size_t number)> &take) {
    for (size_t number = 1; !text.empty(); ++number) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!trimmed(line).empty()) {
            take(line, number);
        }
    }
}

// What only gateway files have: comments and recordings, annotations, patterns.
bool isOwn(std::string_view line) {
    const std::string_view start = trimmed(line.substr(0, line.find('=')));
    return start.starts_with('#') || start.starts_with('@') || start.find(" [") != std::string_view::npos ||
           start.find('{') != std::string_view::npos;
}

bool isQuoted(std::string_view value) {
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
}

} // namespace

bool isTextDump(std::string_view text) {
    const size_t first = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const bool below = std::any_of(std::begin(kRootPaths), std::end(kRootPaths),
                                   [&](std::string_view root) { return text.substr(first).starts_with(root); });
    size_t lines = 0;
    size_t pairs = 0;
    bool own = false;
    bool close = false; // "path=value", which no gateway file has
    eachLine(text, [&](std::string_view line, size_t /*number*/) {
        const std::optional<Line> parts = split(line);
        own = own || isOwn(line);
        close = close || (parts && line[line.find('=') - 1] != ' ');
        ++lines;
        pairs += parts ? 1 : 0;
    });
    return below && !own && (pairs == lines || close);
}

Dump readTextDump(std::string_view text) {
    bool quotes = true;
    eachLine(text, [&](std::string_view line, size_t /*number*/) {
        const std::optional<Line> parts = split(line);
        quotes = quotes && (!parts || isQuoted(parts->value));
    });
    Dump dump;
    eachLine(text, [&](std::string_view line, size_t number) {
        const std::optional<Line> parts = split(line);
        if (!parts) {
            ++dump.report.values;
            dump.report.count(Reason::TornRow, "line " + std::to_string(number));
            return;
        }
        DumpRow &row = dump.rows.emplace_back();
        row.path = parts->path;
        row.value = quotes ? parts->value.substr(1, parts->value.size() - 2) : parts->value;
        row.line = number;
    });
    return dump;
}

} // namespace sandbox
