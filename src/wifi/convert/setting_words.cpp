// SPDX-License-Identifier: MIT
// Turning the configuration layer's words into the user interface's and back, by the pair tables.
#include "frame/trace.h"

#include <cstring>

using namespace frame;

namespace {

using Cell = char (PairRow::*)[sizeof(PairRow::sFirst)];

constexpr int kToUi = 1; // any other direction is towards the configuration layer

// The `wanted` cell of the first row whose `given` cell equals the text, or the text itself.
const char *translate(const char *text, const PairRow *table, int rows, Cell given, Cell wanted) {
    for (int i = 0; i < rows; ++i) {
        if (strcmp(table[i].*given, text) == 0) {
            return table[i].*wanted;
        }
    }
    return text;
}

template <size_t Rows>
const char *convert(const char *text, int direction, const PairRow (&table)[Rows]) {
    return direction == kToUi ? FapiToUi_Str(text, table, Rows) : UiToFapi_Str(text, table, Rows);
}

// What an absent value of a setting stands for.
struct Absent {
    const char *ui;
    const char *fapi;
};

template <size_t Rows>
const char *convert(const char *text, int direction, const PairRow (&table)[Rows], const Absent &absent, int line,
                    const char *function = __builtin_FUNCTION()) {
    if (text && *text) {
        return convert(text, direction, table);
    }
    traceVola({Unit::WifiUtil, line, function}, "\n\n>>>>>>>>>> %s from parameter is unvalide  <<<<<<<<<<<<<\n\n",
              function);
    return direction == kToUi ? absent.ui : absent.fapi;
}

} // namespace

const char *FapiToUi_Str(const char *text, const PairRow *table, int rows) {
    if (!text) {
        traceVola({Unit::WifiUtil, 13}, "Received str is NULL. \n");
        return nullptr;
    }
    return translate(text, table, rows, &PairRow::sFirst, &PairRow::sSecond);
}

const char *UiToFapi_Str(const char *text, const PairRow *table, int rows) {
    if (!text) {
        traceVola({Unit::WifiUtil, 42}, "Received str is NULL. \n");
        return nullptr;
    }
    return translate(text, table, rows, &PairRow::sSecond, &PairRow::sFirst);
}

const char *DevToPhy_Str(const char *text, const PairRow *table, int rows) {
    return translate(text, table, rows, &PairRow::sFirst, &PairRow::sSecond);
}

const char *OperatingStandards_ConvStr(const char *text, int direction) {
    return convert(text, direction, WireLessMode_FapiToUi_Table);
}

const char *BandWidth_ConvStr(const char *text, int direction) {
    return convert(text, direction, BandWidth_FapiToUi_Table);
}

const char *ExtensionChannel_ConvStr(const char *text, int direction) {
    return convert(text, direction, SideBand_FapiToUi_Table);
}

const char *ShortGuardInterval_ConvStr(const char *text, int direction) {
    return convert(text, direction, ShortGuardInterval_FapiToUi_Table);
}

const char *VhtShortGuardInterval_ConvStr(const char *text, int direction) {
    return convert(text, direction, VhtShortGuardInterval_FapiToUi_Table);
}

const char *WMMOption_ConvStr(const char *text, int direction) {
    return convert(text, direction, WMM_Option_FapiToUi_Table, {"(null)", "AC_Normal"}, 520);
}

const char *Dot11nProtect_ConvStr(const char *text, int direction) {
    return convert(text, direction, Dot11nProtect_FapiToUi_Table, {"false", "Disabled"}, 547);
}

const char *AutoChannelEnable_ConvStr(const char *text, int /*direction*/) {
    return text;
}

const char *ChannelList_ConvStr(const char *text, int /*direction*/) {
    return text;
}

const char *ConvStr(const char *text) {
    return text;
}
