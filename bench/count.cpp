// SPDX-License-Identifier: MIT
// caltofal_count: checks every page, then runs each side of it a number of times and has callgrind write what was
// counted. The script `count` runs it under valgrind and draws the conclusions.
//
// On standard output a line for each page: name, runs, platform calls, nodes, most that the total may be, whether
// growth is measured.
#include "check.h"
#include "page.h"
#include "platform/platform.h"

#include <cstdio>
#include <valgrind/callgrind.h>

using namespace bench;

namespace {

constexpr int kRuns = 20;

void count(const Page &page, Side side, const std::string &label) {
    std::string record(page.recordSize, '\0');
    runOnce(page, side, record.data()); // fills the pools
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < kRuns; ++i) {
        runOnce(page, side, record.data());
    }
    CALLGRIND_DUMP_STATS_AT(label.c_str());
}

void countBoth(const Page &page, const char *size) {
    count(page, page.library, page.name + " library " + size);
    count(page, page.floor, page.name + " floor " + size);
}

bool checkAndCount(const Page &page) {
    holdAnswers(page.answers);
    const std::string fault = findFault(page);
    if (!fault.empty()) {
        fprintf(stderr, "%s: %s\n", page.name.c_str(), fault.c_str());
        return false;
    }
    const Cost cost = costOf(page, page.library);
    printf("%s %d %llu %llu %.2f %d\n", page.name.c_str(), kRuns, static_cast<unsigned long long>(cost.calls),
           static_cast<unsigned long long>(cost.nodes), page.totalLimit, page.growth == Growth::None ? 0 : 1);
    countBoth(page, "plain");
    if (page.growth != Growth::None) {
        holdAnswers(grow(page.answers, page.growth, 100));
        countBoth(page, "grown");
    }
    return true;
}

} // namespace

int main() {
    bool sound = true;
    for (const Page &page : pages()) {
        sound = checkAndCount(page) && sound;
    }
    return sound ? 0 : 1;
}
