// SPDX-License-Identifier: MIT
#include "target.h"

#include "refusal.h"

#include <algorithm>

namespace web {
namespace {

// -1 for what is not a hexadecimal digit.
int digit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that "%41" at the text's start stands for.
char escapedByte(std::string_view text) {
    const int high = text.size() > 2 ? digit(text[1]) : -1;
    const int low = text.size() > 2 ? digit(text[2]) : -1;
    const char byte = static_cast<char>(high * 16 + low);
    if (high < 0 || low < 0 || byte == '\0') {
        throw Refusal(Status::BadRequest, "the URL has a percent sign without two hexadecimal digits, or a NUL");
    }
    return byte;
}

std::string decoded(std::string_view text, bool plusIsBlank) {
    std::string result;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%') {
            result += escapedByte(text.substr(at));
            at += 2;
        } else {
            result += plusIsBlank && text[at] == '+' ? ' ' : text[at];
        }
    }
    return result;
}

std::vector<QueryItem> parseQuery(std::string_view text) {
    std::vector<QueryItem> items;
    while (!text.empty()) {
        const std::string_view item = text.substr(0, text.find('&'));
        text.remove_prefix(item.size() == text.size() ? item.size() : item.size() + 1);
        const size_t equals = item.find('=');
        if (!item.empty()) {
            items.push_back({decoded(item.substr(0, equals), true),
                             equals == std::string_view::npos ? "" : decoded(item.substr(equals + 1), true)});
        }
    }
    return items;
}

} // namespace

void checkQuerySize(std::string_view target) {
    if (static_cast<size_t>(std::count(target.begin(), target.end(), '&')) >= kQueryItemsMax) {
        throw Refusal(Status::BadRequest, "the URL's query has more than " + std::to_string(kQueryItemsMax) + " items");
    }
}

Target parseTarget(std::string_view text) {
    if (!text.starts_with('/')) {
        throw Refusal(Status::BadRequest, "the URL is not a path");
    }
    checkQuerySize(text);
    const size_t mark = text.find('?');
    return {decoded(text.substr(0, mark), false),
            mark == std::string_view::npos ? std::vector<QueryItem>() : parseQuery(text.substr(mark + 1))};
}

} // namespace web
