// SPDX-License-Identifier: MIT
#include "page.h"

#include "platform/platform.h"

#include <algorithm>
#include <cstring>

namespace bench {
namespace {

// Filled before main() by the pages' files, in any order.
std::vector<Page> &registered() {
    static std::vector<Page> all;
    return all;
}

} // namespace

const std::vector<Page> &pages() {
    return registered();
}

AddPage::AddPage(Page page) {
    std::vector<Page> &all = registered();
    const auto place = std::find_if(all.begin(), all.end(), [&](const Page &other) { return page.name < other.name; });
    all.insert(place, std::move(page));
}

int runOnce(const Page &page, Side side, void *record) {
    memset(record, 0, page.recordSize);
    const int code = caltofal_measured(side, record);
    reclaimMessages();
    return code;
}

} // namespace bench

[[gnu::noinline]] int caltofal_measured(bench::Side side, void *record) {
    const int code = side(record);
    asm volatile("" ::: "memory"); // keeps the call from becoming a jump, which would leave this function early
    return code;
}
