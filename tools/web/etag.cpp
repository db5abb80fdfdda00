// SPDX-License-Identifier: MIT
#include "etag.h"

#include <cstdint>
#include <cstdio>

namespace web {

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

} // namespace web
