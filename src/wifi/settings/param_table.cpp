// SPDX-License-Identifier: MIT
#include "wifi/settings/param_table.h"

#include "wifi/cut_copy.h"

#include <cstring>

using namespace wifi;

namespace wifi {

bool appendRow(WifiParamTable &table, std::string_view object, std::string_view parameter, std::string_view value) {
    if (table.count < 0 || table.count >= kTableRows) {
        return false;
    }
    WifiParamRow &row = table.rows[table.count];
    copyCut(row.object, object.data(), object.size());
    copyCut(row.parameter, parameter.data(), parameter.size());
    copyCut(row.value, value.data(), value.size());
    ++table.count;
    return true;
}

} // namespace wifi

int SetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value) {
    if (!table || !object || !parameter || !value) {
        return -1;
    }
    // What would be cut off is not read: a field of another record may lack its terminator.
    const bool appended = appendRow(*table, {object, strnlen(object, sizeof(WifiParamRow::object))},
                                    {parameter, strnlen(parameter, sizeof(WifiParamRow::parameter))},
                                    {value, strnlen(value, sizeof(WifiParamRow::value))});
    return appended ? 0 : -1;
}
