// SPDX-License-Identifier: MIT
#include "wifi/driver/survey_line.h"

#include "frame/text.h"
#include "wifi/convert/words.h"
#include "wifi/cut_copy.h"

#include <cstring>

using namespace frame;

namespace wifi {
namespace {

template <size_t Size>
void copyColumn(char (&field)[Size], const SurveyLine::Text &column) {
    copyCut(field, column.data, column.length);
}

} // namespace

SurveyLine splitSurveyLine(char *line) {
    if (*line == '\t') {
        *line = '\0';
    }
    SurveyLine parts;
    char *cursor = line;
    for (SurveyLine::Text &column : parts.column) {
        const char *start = cursor;
        cursor = strchrnul(cursor, '\t');
        column = {start, static_cast<size_t>(cursor - start)};
        if (*cursor) {
            *cursor = '\0';
            cursor = skipSpace(cursor + 1);
        }
    }
    return parts;
}

void fillSurveyEntry(const SurveyLine &line, SiteSurveyEntry &entry) {
    copyColumn(entry.ssid, line.column[SurveyLine::kSsid]);
    entry.channel = number(line.column[SurveyLine::kChannel].data);
    entry.rssi = number(line.column[SurveyLine::kRssi].data);
    copyColumn(entry.security, line.column[SurveyLine::kSecurity]);
    copyColumn(entry.encryption, line.column[SurveyLine::kEncryption]);
    copyColumn(entry.macaddr, line.column[SurveyLine::kMacAddr]);
    entry.bandwidth = number(line.column[SurveyLine::kBandwidth].data);
    copyColumn(entry.phymode, line.column[SurveyLine::kPhyMode]);
    copyColumn(entry.sideband, line.column[SurveyLine::kSideBand]);
    entry.product = number(line.column[SurveyLine::kProduct].data);
}

} // namespace wifi
