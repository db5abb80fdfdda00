// SPDX-License-Identifier: MIT
#include "check.h"

#include "allocations.h"
#include "console.h"
#include "platform/platform.h"

#include <regex>

namespace bench {
namespace {

struct Run {
    int code;
    std::string record;
    std::string calls;
    std::string console;
    bool operator==(const Run &) const = default;
};

// The source lines that location tags name are free.
std::string withoutSourceLines(const std::string &console) {
    static const std::regex tag(R"((\[ZINTU VOLA FAL\] \([A-Za-z]+:)[0-9]+)");
    return std::regex_replace(console, tag, "$1N");
}

Run record(const Page &page, Side side) {
    Run run;
    run.record.resize(page.recordSize);
    recordCalls(&run.calls);
    startConsole();
    run.code = runOnce(page, side, run.record.data());
    run.console = withoutSourceLines(takeConsole());
    recordCalls(nullptr);
    return run;
}

} // namespace

Cost costOf(const Page &page, Side side) {
    std::string record(page.recordSize, '\0');
    runOnce(page, side, record.data());
    const Counts before = platformCounts();
    const uint64_t allocationsBefore = heapAllocations();
    runOnce(page, side, record.data());
    const Counts after = platformCounts();
    return {after.calls - before.calls, after.nodes - before.nodes, heapAllocations() - allocationsBefore};
}

std::string findFault(const Page &page) {
    const Run library = record(page, page.library);
    const Run floor = record(page, page.floor);
    if (library.calls != floor.calls) {
        return "platform calls differ; the library's:\n" + library.calls + "the floor's:\n" + floor.calls;
    }
    if (library.code != floor.code) {
        return "codes differ: " + std::to_string(library.code) + " and " + std::to_string(floor.code);
    }
    if (library.record != floor.record) {
        return "records differ";
    }
    if (library.console != floor.console && !floor.console.empty()) {
        return "console lines differ; the library's:\n" + library.console + "\nthe floor's:\n" + floor.console;
    }
    const uint64_t allocations = costOf(page, page.library).allocations;
    return allocations == 0 ? "" : std::to_string(allocations) + " heap allocations";
}

} // namespace bench
