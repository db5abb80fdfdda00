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
struct Setting {
    const char *object;
    const char *parameter;
    const char *value;

    [[nodiscard]] bool isComplete() const { return object && parameter && value; }
};

// The table's row of a setting, or nullptr.
const WifiParamRow *findRow(const WifiParamTable &table, const Setting &setting) {
    for (const WifiParamRow &row : rows(table)) {
        if (sameName(row.parameter, setting.parameter) && sameName(row.object, setting.object)) {
            return &row;
        }
    }
    return nullptr;
}

bool hasValue(const WifiParamRow &row, const Setting &setting) {
    return strncmp(row.value, setting.value, kCompared) == 0;
}

void traceAbsent(const char *function, const Setting &setting) {
    traceVola({Unit::WifiUtil, __builtin_LINE(), function}, "\n\n  2.%s  <%s> [%s.%s=>%s]\n\n", function,
              "db don't have paramter", setting.object, setting.parameter, setting.value);
}

// Shows the value that the row has, not the wanted one.
void traceRow(const char *function, const WifiParamTable &table, const WifiParamRow &row) {
    traceVola({Unit::WifiUtil, __builtin_LINE(), function}, "\n\n  1.%s  <%d> [%s.%s=>%s]\n\n", function,
              static_cast<int>(&row - table.rows), row.object, row.parameter, row.value);
}

} // namespace

int ComparOrSetParam(WifiParamTable *current, WifiParamTable *changes, const char *object, const char *parameter,
                     const char *value, int force) {
    const Setting setting = {object, parameter, value};
    if (!current || !setting.isComplete()) {
        return -1;
    }
    const WifiParamRow *row = findRow(*current, setting);
    if (!row) {
        traceAbsent(__func__, setting);
    } else {
        if (hasValue(*row, setting) && static_cast<uint8_t>(force) == 0) {
            return 0;
        }
        traceRow(__func__, *current, *row);
    }
    return SetParam(changes, object, parameter, value);
}

int CheckGetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value) {
    const Setting setting = {object, parameter, value};
    if (!table || !setting.isComplete()) {
        return -1;
    }
    const WifiParamRow *row = findRow(*table, setting);
    if (!row) {
        traceAbsent(__func__, setting);
        return -1;
    }
    if (hasValue(*row, setting)) {
        return 0;
    }
    traceRow(__func__, *table, *row);
    return 1;
}

int CheckGetReqDbAndCurDb(WifiParamTable *requested, WifiParamTable *current, const char *object, const char *parameter,
                          const char *value) {
    const Setting setting = {object, parameter, value};
    if (!requested || !current || !setting.isComplete()) {
        return -1;
    }
    const int result = CheckGetParam(requested, object, parameter, value);
    return result != -1 ? result : CheckGetParam(current, object, parameter, value);
}
