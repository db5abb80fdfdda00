// SPDX-License-Identifier: MIT
// caltofal_count [NAME]: checks every page, or those whose name begins so, then runs each side of it a number of times
// and has callgrind write what was counted. The script `count` runs it under valgrind and draws the conclusions.
//
// On standard output a line for each page: name, runs, platform calls, nodes, most that the total and own work may
// be, whether growth is measured. For each size of a survey's file "survey", lines, runs.
#include "check.h"
#include "page.h"
#include "platform/platform.h"
#include "survey.h"

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
    printf("%s %d %llu %llu %.3f %.2f %d\n", page.name.c_str(), kRuns, static_cast<unsigned long long>(cost.calls),
           static_cast<unsigned long long>(cost.nodes), page.totalLimit, page.ownLimit,
           page.growth == Growth::None ? 0 : 1);
    countBoth(page, "plain");
    if (page.growth != Growth::None) {
        holdAnswers(grow(page.answers, page.growth, 100));
        countBoth(page, "grown");
    }
    return true;
}

bool checkAndCountSurvey(int lines, int runs) {
    const SurveyFile file(lines);
    if (!surveyReadersAgree(file)) {
        return false;
    }
    printf("survey %d %d\n", lines, runs);
    for (const SurveyReader &reader : surveyReaders()) {
        CALLGRIND_ZERO_STATS;
        for (int i = 0; i < runs; ++i) {
            SurveyRun run(file);
            caltofal_measured(reader.read, &run);
        }
        const std::string label = "survey " + std::to_string(lines) + ' ' + reader.name;
        CALLGRIND_DUMP_STATS_AT(label.c_str());
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    const std::string wanted = argc > 1 ? argv[1] : "";
    bool sound = true;
    for (const Page &page : pages()) {
        if (page.name.starts_with(wanted)) {
            sound = checkAndCount(page) && sound;
        }
    }
    if (std::string("survey").starts_with(wanted)) {
        sound = checkAndCountSurvey(200, 2) && sound;
        sound = checkAndCountSurvey(20000, 1) && sound;
    }
    return sound ? 0 : 1;
}
