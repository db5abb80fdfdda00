// SPDX-License-Identifier: MIT
#include "caltofal/fold.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <numeric>
#include <string_view>

namespace cli {
namespace {

constexpr size_t kGap = 2;
constexpr std::string_view kBreakable = " ,|"; // behind these
constexpr size_t kValueLeast = 32;             // columns: in less room a long value stands below its label
constexpr const char *kIndent = "    ";

size_t columnsOf(const pages::Table &table) {
    return !table.headings.empty() ? table.headings.size() : table.rows.empty() ? 0 : table.rows.front().size();
}

std::vector<size_t> widthsOf(const pages::Table &table) {
    std::vector<size_t> widths(columnsOf(table));
    for (size_t i = 0; i < table.headings.size(); ++i) {
        widths[i] = displayWidth(table.headings[i]);
    }
    for (const pages::Row &row : table.rows) {
        for (size_t i = 0; i < std::min(row.size(), widths.size()); ++i) {
            widths[i] = std::max(widths[i], displayWidth(row[i].text));
        }
    }
    return widths;
}

// Of columns in one line.
size_t lineWidth(const std::vector<size_t> &widths, size_t gap) {
    const size_t gaps = widths.empty() ? 0 : widths.size() - 1;
    return std::accumulate(widths.begin(), widths.end(), gap * gaps);
}

// The bytes of the character that begins a printable text.
size_t lengthOfFirst(const std::string &text, size_t at) {
    const int length = mblen(text.c_str() + at, text.size() - at);
    return length > 0 ? static_cast<size_t>(length) : 1;
}

// How much of a text stands in the first line.
size_t firstPiece(const std::string &text, size_t width) {
    size_t end = 0;
    size_t breakable = 0;
    while (end < text.size()) {
        const size_t next = end + lengthOfFirst(text, end);
        if (displayWidth(text.substr(0, next)) > width) {
            return breakable > 0 ? breakable : std::max(end, next - end);
        }
        end = next;
        const bool goesOn = end < text.size() && (text[end] == ',' || text[end] == ' ');
        if (kBreakable.find(text[end - 1]) != std::string_view::npos && !goesOn) {
            breakable = end;
        }
    }
    return end;
}

std::vector<std::string> piecesOf(std::string text, size_t width) {
    std::vector<std::string> pieces;
    do {
        const size_t length = firstPiece(text, width);
        pieces.push_back(text.substr(0, length));
        text.erase(0, length);
    } while (!text.empty());
    return pieces;
}

std::string valueOf(const pages::Row &row) {
    return row.size() > 1 ? row[1].text : "";
}

// One column: labels with their values, or with long values in the lines below.
pages::Table withValuesBelow(const pages::Table &table, size_t width, size_t labels) {
    pages::Table result;
    const size_t indent = displayWidth(kIndent);
    for (const pages::Row &row : table.rows) {
        const std::string value = valueOf(row);
        const size_t padding = labels + kGap - displayWidth(row[0].text);
        if (labels + kGap + displayWidth(value) <= width) {
            result.rows.push_back({{row[0].text + std::string(padding, ' ') + value}});
            continue;
        }
        result.rows.push_back({row[0]});
        for (const std::string &piece : piecesOf(value, std::max(width, indent + 1) - indent)) {
            result.rows.push_back({{kIndent + piece}});
        }
    }
    return result;
}

} // namespace

size_t displayWidth(const std::string &text) {
    std::wstring wide(text.size() + 1, L'\0');
    const size_t length = mbstowcs(wide.data(), text.c_str(), wide.size());
    const int width = length == static_cast<size_t>(-1) ? -1 : wcswidth(wide.c_str(), length);
    return width < 0 ? text.size() : static_cast<size_t>(width);
}

std::string foldedText(const std::string &text, size_t width) {
    const size_t indent = displayWidth(kContinuation);
    if (width <= indent || displayWidth(text) <= width) {
        return text;
    }
    std::string result;
    for (const std::string &piece : piecesOf(text, width - indent)) {
        result += (result.empty() ? "" : "\n" + std::string(kContinuation)) +
                  piece.substr(0, piece.find_last_not_of(' ') + 1);
    }
    return result;
}

size_t gapFor(const pages::Table &table, size_t width) {
    const std::vector<size_t> widths = widthsOf(table);
    return lineWidth(widths, kGap) > width && lineWidth(widths, 1) <= width ? 1 : kGap;
}

std::vector<std::string> columnsToLeave(const pages::Table &table, size_t width) {
    std::vector<size_t> widths = widthsOf(table);
    size_t used = lineWidth(widths, 1);
    std::vector<std::string> left;
    for (const std::string &heading : table.leastNeeded) {
        const auto place = std::find(table.headings.begin(), table.headings.end(), heading);
        if (used > width && place != table.headings.end()) {
            used -= widths[static_cast<size_t>(place - table.headings.begin())] + 1;
            left.push_back(heading);
        }
    }
    return left;
}

pages::Table groupedByObject(const pages::Table &table, size_t width) {
    constexpr const char *kBelow = "  ";
    const bool paths = std::all_of(table.rows.begin(), table.rows.end(), [](const pages::Row &row) {
        return !row.empty() && row[0].text.find('.') != std::string::npos;
    });
    if (!paths || lineWidth(widthsOf(table), 1) <= width) {
        return table;
    }
    pages::Table result{table.headings};
    std::string last;
    for (const pages::Row &row : table.rows) {
        const size_t dot = row[0].text.rfind('.');
        const std::string object = row[0].text.substr(0, dot);
        if (object != last) {
            result.rows.push_back({{object, pages::Style::Heading}});
            last = object;
        }
        result.rows.push_back(row);
        result.rows.back()[0].text = kBelow + row[0].text.substr(dot + 1);
    }
    return result;
}

std::vector<std::vector<size_t>> columnGroups(const pages::Table &table, size_t width, size_t gap) {
    const std::vector<size_t> widths = widthsOf(table);
    std::vector<std::vector<size_t>> groups;
    size_t used = 0;
    for (size_t i = 0; i < widths.size(); ++i) {
        if (groups.empty() || used + gap + widths[i] > width) {
            used = groups.empty() ? 0 : displayWidth(kContinuation);
            groups.emplace_back();
        } else {
            used += gap;
        }
        used += widths[i];
        groups.back().push_back(i);
    }
    return groups;
}

pages::Table withFoldedValues(const pages::Table &table, size_t width) {
    const std::vector<size_t> widths = widthsOf(table);
    if (widths.size() != 2 || widths[0] + kGap + widths[1] <= width) {
        return table;
    }
    if (widths[0] + kGap + kValueLeast > width) {
        return withValuesBelow(table, width, widths[0]);
    }
    const size_t room = width - widths[0] - kGap;
    pages::Table result{table.headings, {}};
    for (const pages::Row &row : table.rows) {
        pages::Cell label = row[0];
        const pages::Style style = row.size() > 1 ? row[1].style : pages::Style::Plain;
        for (const std::string &piece : piecesOf(valueOf(row), room)) {
            result.rows.push_back({label, {piece, style}});
            label.text.clear();
        }
    }
    return result;
}

} // namespace cli
