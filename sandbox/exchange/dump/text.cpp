// SPDX-License-Identifier: MIT
#include "exchange/dump/text.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace sandbox {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kRoots[] = {"Device.", "InternetGatewayDevice."};

std::string_view trimmed(std::string_view text) {
    const size_t first = std::min(text.find_first_not_of(kBlanks), text.size());
    return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

struct Line {
    std::string_view path;
    std::string_view value;
};

// Nothing where the line is not of the form.
std::optional<Line> split(std::string_view line) {
    const size_t equals = line.find('=');
    const std::string_view path = trimmed(line.substr(0, std::min(equals, line.size())));
    if (equals == std::string_view::npos || path.find('.') == std::string_view::npos || path.ends_with('.') ||
        path.find_first_of(" \t[]{}\"'") != std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view value = line.substr(equals + 1);
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    value.remove_suffix(value.ends_with('\r') ? 1 : 0);
    return Line{path, value};
}

// Calls `take` with every line that is not blank and its number until that answers false; whether it never did.
bool eachLine(std::string_view text, const std::function<bool(std::string_view line, size_t number)> &take) {
    for (size_t number = 1; !text.empty(); ++number) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!trimmed(line).empty() && !take(line, number)) {
            return false;
        }
    }
    return true;
}

bool isQuoted(std::string_view value) {
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
}

} // namespace

bool isTextDump(std::string_view text) {
    const size_t first = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const bool below = std::any_of(std::begin(kRoots), std::end(kRoots),
                                   [&](std::string_view root) { return text.substr(first).starts_with(root); });
    return below && eachLine(text, [](std::string_view line, size_t /*number*/) { return split(line).has_value(); });
}

Dump readTextDump(std::string_view text) {
    const bool quotes =
        eachLine(text, [](std::string_view line, size_t /*number*/) { return isQuoted(split(line)->value); });
    Dump dump;
    eachLine(text, [&](std::string_view line, size_t number) {
        const Line parts = *split(line);
        DumpRow &row = dump.rows.emplace_back();
        row.path = parts.path;
        row.value = quotes ? parts.value.substr(1, parts.value.size() - 2) : parts.value;
        row.line = number;
        return true;
    });
    return dump;
}

} // namespace sandbox
