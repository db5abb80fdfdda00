// SPDX-License-Identifier: MIT
// Comparing a wanted setting with what a table holds.
#include "frame/lookup.h"
#include "wifi/settings/param_table.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr size_t kCompared = 256;

// A wanted setting.
struct Wanted {
    const char *object;
    const char *parameter;
    const char *value;

    [[nodiscard]] bool isComplete() const { return object && parameter && value; }
};

// The table's row of a wanted setting, or nullptr.
const WifiParamRow *findRow(const WifiParamTable &table, const Wanted &wanted) {
    for (const WifiParamRow &row : rows(table)) {
        if (sameName(row.parameter, wanted.parameter) && sameName(row.object, wanted.object)) {
            return &row;
        }
    }
    return nullptr;
}

bool hasValue(const WifiParamRow &row, const Wanted &wanted) {
    return strncmp(row.value, wanted.value, kCompared) == 0;
}

void traceAbsent(const char *function, const Wanted &wanted) {
    traceVola({Unit::WifiUtil, __builtin_LINE(), function}, "\n\n  2.%s  <%s> [%s.%s=>%s]\n\n", function,
              "db don't have paramter", wanted.object, wanted.parameter, wanted.value);
}

// Shows the value that the row has, not the wanted one.
void traceRow(const char *function, const WifiParamTable &table, const WifiParamRow &row) {
    traceVola({Unit::WifiUtil, __builtin_LINE(), function}, "\n\n  1.%s  <%d> [%s.%s=>%s]\n\n", function,
              static_cast<int>(&row - table.rows), row.object, row.parameter, row.value);
}

} // namespace

int ComparOrSetParam(WifiParamTable *current, WifiParamTable *changes, const char *object, const char *parameter,
                     const char *value, int force) {
    const Wanted wanted = {object, parameter, value};
    if (!current || !wanted.isComplete()) {
        return -1;
    }
    const WifiParamRow *row = findRow(*current, wanted);
    if (!row) {
        traceAbsent(__func__, wanted);
    } else {
        if (hasValue(*row, wanted) && static_cast<uint8_t>(force) == 0) {
            return 0;
        }
        traceRow(__func__, *current, *row);
    }
    return SetParam(changes, object, parameter, value);
}

int CheckGetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value) {
    const Wanted wanted = {object, parameter, value};
    if (!table || !wanted.isComplete()) {
        return -1;
    }
    const WifiParamRow *row = findRow(*table, wanted);
    if (!row) {
        traceAbsent(__func__, wanted);
        return -1;
    }
    if (hasValue(*row, wanted)) {
        return 0;
    }
    traceRow(__func__, *table, *row);
    return 1;
}

int CheckGetReqDbAndCurDb(WifiParamTable *requested, WifiParamTable *current, const char *object, const char *parameter,
                          const char *value) {
    const Wanted wanted = {object, parameter, value};
    if (!requested || !current || !wanted.isComplete()) {
        return -1;
    }
    const int result = CheckGetParam(requested, object, parameter, value);
    return result != -1 ? result : CheckGetParam(current, object, parameter, value);
}
