// SPDX-License-Identifier: MIT
#include "header_trail.h"

#include <algorithm>
#include <cstring>
#include <microhttpd.h>

namespace web {
namespace {

constexpr uintptr_t kLineEndMax = 2; // CR LF; LF alone is one too

bool cutsInPlace() {
    static const bool old = std::string_view(MHD_get_version()) <= "0.9.76"; // of one length since 0.9.10
    return old;
}

uintptr_t gap(const char *from, const char *to) {
    return reinterpret_cast<uintptr_t>(to) - reinterpret_cast<uintptr_t>(from);
}

} // namespace

HeaderTrail::HeaderTrail(const char *method, std::string_view target, const char *version)
    : end_(version + strlen(version)),
      whole_(gap(method + strlen(method), target.data()) == 1 && gap(target.data() + target.size(), version) == 1) {}

void HeaderTrail::follow(const char *name, const char *value) {
    const uintptr_t between = gap(end_, name);
    lineEnd_ = lineEnd_ == 0 ? between : lineEnd_;
    whole_ = whole_ && between == lineEnd_ && between <= kLineEndMax;
    end_ = value + strlen(value);
}

bool HeaderTrail::endsAt(const char *headEnd) const {
    if (!cutsInPlace()) {
        return true;
    }
    if (!whole_ || lineEnd_ == 0) { // a first line without a name is a header to the library
        return whole_;
    }
    return gap(end_, headEnd) == 2 * lineEnd_ && std::all_of(end_, headEnd, [](char c) { return c == '\0'; });
}

} // namespace web
