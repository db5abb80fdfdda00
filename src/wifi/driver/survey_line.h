// SPDX-License-Identifier: MIT
// Lines of a survey's result file.
#pragma once

#include "caltofal.h"

#include <cstddef>

namespace wifi {

// The columns of a line; "" for those that it does not reach.
struct SurveyLine {
    struct Text {
        const char *data; // terminated
        size_t length;
    };
    enum Column : unsigned char {
        kSsid,
        kChannel,
        kRssi,
        kSecurity,
        kEncryption,
        kMacAddr,
        kBandwidth,
        kPhyMode,
        kSideBand,
        kProduct,
        kColumns
    };

    // Whether every column holds something.
    [[nodiscard]] bool isComplete() const { return column[kColumns - 1].length > 0; }

    Text column[kColumns];
};

// Cuts a line into columns, in place, as the scan format "%[^\t]\t%[^\t]\t..." of ten columns does: a tab ends a
// column, all white space after the tab is skipped, and a column that would be empty ends the line.
SurveyLine splitSurveyLine(char *line);

// Fills an entry from a complete line; texts are cut to 126 characters.
void fillSurveyEntry(const SurveyLine &line, SiteSurveyEntry &entry);

} // namespace wifi
