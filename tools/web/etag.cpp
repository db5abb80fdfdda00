// SPDX-License-Identifier: MIT
#include "etag.h"

#include "request.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace web {
namespace {

// The length of the tag with its quotes, and "W/" where it is a weak one, at the beginning of a text; 0 where none is.
size_t tagLength(std::string_view text) {
    const size_t open = text.starts_with("W/") ? 2 : 0;
    const size_t close = text.find('"', open + 1);
    const bool isTag = text.substr(open).starts_with('"') && close != std::string_view::npos;
    const std::string_view inside = isTag ? text.substr(open + 1, close - open - 1) : "";
    const bool isPlain =
        std::all_of(inside.begin(), inside.end(), [](unsigned char c) { return c > ' ' && c != 0x7f; });
    return isTag && isPlain ? close + 1 : 0;
}

} // namespace

std::string etagOf(std::string_view content) {
    uint64_t hash = 0xcbf29ce484222325;
    for (const unsigned char byte : content) {
        hash = (hash ^ byte) * 0x100000001b3;
    }
    char text[32];
    snprintf(text, sizeof(text), "\"%016llx\"", static_cast<unsigned long long>(hash));
    return text;
}

// A tag of ours holds neither a quote nor a comma inside, so that finding it is enough.
bool etagMatches(std::string_view ifNoneMatch, std::string_view etag) {
    return ifNoneMatch == "*" || ifNoneMatch.find(etag) != std::string_view::npos;
}

std::optional<bool> etagAllows(std::string_view ifMatch, std::string_view etag) {
    std::string_view rest = trimmed(ifMatch);
    if (rest == "*") {
        return true;
    }
    bool found = false;
    while (!rest.empty()) {
        const size_t length = tagLength(rest); // 0 between two commas as well
        found = found || rest.substr(0, length) == etag;
        rest = trimmed(rest.substr(length));
        if (!rest.empty() && rest.front() != ',') {
            return {};
        }
        rest = trimmed(rest.substr(std::min<size_t>(1, rest.size())));
    }
    return found;
}

} // namespace web
