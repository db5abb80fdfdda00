// SPDX-License-Identifier: MIT
#include "param_table.h"

#include "text.h"

using namespace frame;
using namespace wifi;

int SetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value) {
    if (!table || !object || !parameter || !value || table->count >= kTableRows) {
        return -1;
    }
    WifiParamRow &row = table->rows[table->count];
    // The last byte of each field stays unused.
    copyText(row.object, sizeof(row.object) - 1, object);
    copyText(row.parameter, sizeof(row.parameter) - 1, parameter);
    copyText(row.value, sizeof(row.value) - 1, value);
    ++table->count;
    return 0;
}
