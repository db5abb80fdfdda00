// SPDX-License-Identifier: MIT
#include "survey_parse.h"

#include "text.h"
#include "words.h"

using namespace frame;

namespace wifi {
namespace {

// The next tab, the text's end at the latest.
char *skipToTab(char *text) {
    for (;; ++text) {
        // Both are below whatever a column usually holds: one comparison passes that.
        const auto c = static_cast<unsigned char>(*text);
        if (c <= '\t' && (c == '\t' || c == '\0')) {
            return text;
        }
    }
}

// As ConvInt(), without its costs for the short numbers that columns usually hold.
int toInt(const char *column) {
    constexpr int kSafeDigits = 9;
    const bool negative = *column == '-';
    const char *first = column + (negative ? 1 : 0);
    const char *digit = first;
    int value = 0;
    for (; *digit >= '0' && *digit <= '9' && digit - first < kSafeDigits; ++digit) {
        value = value * 10 + (*digit - '0');
    }
    if (digit == first || digit - first == kSafeDigits) {
        return ConvInt(column);
    }
    return negative ? -value : value;
}

// The last byte of each field stays unused.
template <size_t Size>
void copyColumn(char (&field)[Size], const char *column) {
    copyText(field, Size - 1, column);
}

} // namespace

SurveyLine splitSurveyLine(char *line) {
    if (*line == '\t') {
        *line = '\0';
    }
    SurveyLine parts;
    char *cursor = line;
    for (const char *&column : parts.column) {
        column = cursor;
        cursor = skipToTab(cursor);
        if (*cursor) {
            *cursor = '\0';
            cursor = skipSpace(cursor + 1);
        }
    }
    return parts;
}

void fillSurveyEntry(const SurveyLine &line, SiteSurveyEntry &entry) {
    copyColumn(entry.ssid, line.column[SurveyLine::Ssid]);
    entry.channel = toInt(line.column[SurveyLine::Channel]);
    entry.rssi = toInt(line.column[SurveyLine::Rssi]);
    copyColumn(entry.security, line.column[SurveyLine::Security]);
    copyColumn(entry.encryption, line.column[SurveyLine::Encryption]);
    copyColumn(entry.macaddr, line.column[SurveyLine::MacAddr]);
    entry.bandwidth = toInt(line.column[SurveyLine::Bandwidth]);
    copyColumn(entry.phymode, line.column[SurveyLine::PhyMode]);
    copyColumn(entry.sideband, line.column[SurveyLine::SideBand]);
    entry.product = toInt(line.column[SurveyLine::Product]);
}

} // namespace wifi
