// SPDX-License-Identifier: MIT
#include "survey.h"

#include "by_hand.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace bench {
namespace {

std::string textOf(int lines) {
    constexpr const char *kNames[] = {"Home Net", "CoffeeHouse_Guest", "x", "Office 2nd floor (printers)", "TP-2F",
                                      "5G"};
    constexpr const char *kSecurity[] = {"WPA2-PSK\tAES", "WPA/WPA2-PSK\tTKIP+AES", "NONE\tNONE", "WEP\tWEP"};
    constexpr const char *kRadios[] = {"20\t11bgn\tnone", "40\t11gn\tupper", "80\t11anac\tlower"};
    std::string text;
    for (int i = 0; i < lines; ++i) {
        char line[128];
        snprintf(line, sizeof(line), "%s\t%d\t%d\t%s\t%02x:1d:aa:%02x:%02x:%02x\t%s\t%d\n", kNames[i % 6], 1 + i % 165,
                 -20 - i % 75, kSecurity[i % 4], i & 0xfc, i & 0xff, i >> 8 & 0xff, i % 251, kRadios[i % 3], i % 2);
        text += line;
    }
    return text;
}

int byLibrary(void *argument) {
    auto *run = static_cast<SurveyRun *>(argument);
    return GetSiteSurveyList(run->file.path(), &run->list, "");
}

SiteSurveyEntry *allocate(int entries) {
    // NOLINTNEXTLINE(clang-analyzer-optin.portability.UnixAPI): no file of these is empty
    return static_cast<SiteSurveyEntry *>(malloc(static_cast<size_t>(entries) * sizeof(SiteSurveyEntry)));
}

int countLines(const char *path) {
    FILE *file = fopen(path, "r");
    int lines = 0;
    for (char line[1000]; fgets(line, sizeof(line), file);) {
        ++lines;
    }
    fclose(file);
    return lines;
}

// As the format is described: line by line, ten columns cleared and scanned.
int byScan(void *argument) {
    auto *run = static_cast<SurveyRun *>(argument);
    run->list.entries = allocate(countLines(run->file.path()));
    FILE *file = fopen(run->file.path(), "r");
    for (char line[128]; fgets(line, sizeof(line), file);) {
        char c[10][128] = {};
        // cppcheck-suppress invalidscanf // no column is longer than the line
        sscanf(line, "%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]", c[0], c[1], c[2],
               c[3], c[4], c[5], c[6], c[7], c[8], c[9]);
        if (!*c[9]) {
            continue;
        }
        SiteSurveyEntry &entry = run->list.entries[run->list.count++];
        by_hand::copy(entry.ssid, c[0]);
        entry.channel = atoi(c[1]);
        entry.rssi = atoi(c[2]);
        by_hand::copy(entry.security, c[3]);
        by_hand::copy(entry.encryption, c[4]);
        by_hand::copy(entry.macaddr, c[5]);
        entry.bandwidth = atoi(c[6]);
        by_hand::copy(entry.phymode, c[7]);
        by_hand::copy(entry.sideband, c[8]);
        entry.product = atoi(c[9]);
    }
    fclose(file);
    return run->list.count;
}

// Takes a column off a line of sound ones.
const char *takeText(char *field, const char *from) {
    const char *end = from;
    while (*end != '\t') {
        ++end;
    }
    const auto length = static_cast<size_t>(end - from);
    memcpy(field, from, length);
    field[length] = '\0';
    return end + 1;
}

const char *takeNumber(int32_t &field, const char *from) {
    field = by_hand::number(from);
    while (*from != '\t' && *from != '\n') {
        ++from;
    }
    return from + 1;
}

// One pass over a text that is in memory, of a known number of lines, and trusted.
int bySplitting(void *argument) {
    auto *run = static_cast<SurveyRun *>(argument);
    run->list.entries = allocate(run->file.lines());
    for (const char *at = run->file.text().c_str(); *at;) {
        SiteSurveyEntry &entry = run->list.entries[run->list.count++];
        at = takeText(entry.ssid, at);
        at = takeNumber(entry.channel, at);
        at = takeNumber(entry.rssi, at);
        at = takeText(entry.security, at);
        at = takeText(entry.encryption, at);
        at = takeText(entry.macaddr, at);
        at = takeNumber(entry.bandwidth, at);
        at = takeText(entry.phymode, at);
        at = takeText(entry.sideband, at);
        at = takeNumber(entry.product, at);
    }
    return run->list.count;
}

// Whether two entries agree, without what is left of the fields behind their texts.
bool same(const SiteSurveyEntry &a, const SiteSurveyEntry &b) {
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): both are filled
    return strcmp(a.ssid, b.ssid) == 0 && a.channel == b.channel && a.rssi == b.rssi &&
           strcmp(a.security, b.security) == 0 && strcmp(a.encryption, b.encryption) == 0 &&
           strcmp(a.macaddr, b.macaddr) == 0 && a.bandwidth == b.bandwidth && strcmp(a.phymode, b.phymode) == 0 &&
           strcmp(a.sideband, b.sideband) == 0 && a.product == b.product;
}

} // namespace

SurveyFile::SurveyFile(int lines) : lines_(lines), text_(textOf(lines)) {
    const int file = mkstemp(path_);
    if (write(file, text_.data(), text_.size()) != static_cast<ssize_t>(text_.size())) {
        perror(path_);
        exit(2);
    }
    close(file);
}

SurveyFile::~SurveyFile() {
    unlink(path_);
}

SurveyRun::~SurveyRun() {
    free(list.entries);
}

const std::vector<SurveyReader> &surveyReaders() {
    static const std::vector<SurveyReader> readers = {{"library", byLibrary}, {"scan", byScan}, {"split", bySplitting}};
    return readers;
}

const SurveyReader &surveyReader(std::string_view name) {
    const auto &readers = surveyReaders();
    return *std::find_if(readers.begin(), readers.end(),
                         [&](const SurveyReader &reader) { return reader.name == name; });
}

bool surveyReadersAgree(const SurveyFile &file) {
    SurveyRun expected(file);
    bySplitting(&expected);
    bool agree = expected.list.count == file.lines();
    for (const SurveyReader &reader : surveyReaders()) {
        SurveyRun run(file);
        const int count = reader.read(&run);
        const bool equal = count == run.list.count && count == expected.list.count &&
                           std::equal(run.list.entries, run.list.entries + count, expected.list.entries, same);
        if (!equal) {
            fprintf(stderr, "survey of %d lines: %s and splitter differ\n", file.lines(), reader.name);
        }
        agree = agree && equal;
    }
    return agree;
}

} // namespace bench
