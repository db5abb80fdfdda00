// SPDX-License-Identifier: MIT
// Asks for pages over and over, all getters in turn, and watches the memory: soak [PAGES]
//
// Exit code: 0 flat, 1 something grows or is left.
#include "device.h"
#include "getters.h"

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

using namespace test;

namespace {

struct Totals {
    size_t left = 0;     // messages that a getter leaves on purpose
    size_t unwanted = 0; // nodes left by one that should leave none
    size_t requests = 0;
};

void ask(const Getter &getter, Totals &totals) {
    resetPlatform();
    platform().otherwise(richAnswer());
    getter.run();
    totals.requests += platform().calls().size();
    totals.left += platform().heads();
    if (getter.leftMessages == 0 ? platform().nodes() > 0 : platform().heads() > getter.leftMessages) {
        ++totals.unwanted;
        fprintf(stderr, "soak: %s leaves nodes behind\n", getter.name);
    }
    takeConsole();
    takeSyslog();
    shell().commands.clear();
}

// Bytes in use on the heap, with the last page's answer released.
size_t heapInUse() {
    resetPlatform();
    return mallinfo2().uordblks;
}

} // namespace

int main(int argc, char **argv) {
    const long pages = argc > 1 ? strtol(argv[1], nullptr, 10) : 1000000;
    const auto &rows = getters();
    if (pages < static_cast<long>(20 * rows.size())) {
        fprintf(stderr, "soak: at least %zu pages\n", 20 * rows.size());
        return 2;
    }
    shell().onPopen = [](const std::string &) { return "1 2412 160 80 40+ 40- DFS\n"; };
    Totals totals;
    const long tenth = pages / 10;
    size_t atHalf = 0; // caches of libc and of the scripted platform have filled by then
    for (long page = 0; page < pages; ++page) {
        if (page % tenth == 0) {
            const size_t inUse = heapInUse();
            printf("%9ld pages  %8zu bytes in use\n", page, inUse);
            fflush(stdout);
            atHalf = page == 5 * tenth ? inUse : atHalf;
        }
        ask(rows[static_cast<size_t>(page) % rows.size()], totals);
    }
    const size_t atLast = heapInUse();
    printf("%9ld pages  %8zu bytes in use\n%zu requests; %zu messages left on purpose, by", pages, atLast,
           totals.requests, totals.left);
    for (const Getter &getter : rows) {
        if (getter.leftMessages > 0) {
            printf(" %s", getter.name);
        }
    }
    printf("\n");
    // The smallest thing that one getter could leave behind would make it ten times as much.
    const auto spread = static_cast<size_t>(pages / 2) / 10;
    if (totals.unwanted > 0 || atLast > atHalf + spread) {
        fprintf(stderr, "soak: memory is not flat\n");
        return 1;
    }
    return 0;
}
