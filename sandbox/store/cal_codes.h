// SPDX-License-Identifier: MIT
//
// The codes with which the sandbox's layer refuses a message, with their names and meanings.
#pragma once

#include "caltofal.h"

#include <string_view>

namespace sandbox {

struct CodeMeaning {
    int code; // CaltofalLayerCode
    std::string_view name;
    std::string_view meaning;
};

inline constexpr CodeMeaning kCodeMeanings[] = {
    {CALTOFAL_BAD_MESSAGE, "bad-message", "the message is malformed"},
    {CALTOFAL_ABSENT_OBJECT, "absent-object", "the object does not exist"},
    {CALTOFAL_UNKNOWN_PARAMETER, "unknown-parameter", "the object has no such parameter"},
    {CALTOFAL_READ_ONLY, "read-only", "the parameter or table can not be written"},
    {CALTOFAL_WRONG_TYPE, "wrong-type", "the value is not of the parameter's type"},
    {CALTOFAL_OUT_OF_RANGE, "out-of-range", "the value is outside the parameter's range, length or enumeration"},
    {CALTOFAL_NOT_A_TABLE, "not-a-table", "add on what is no table, or del on what is no instance"},
    {CALTOFAL_NO_MATCH, "no-match", "no instance matches the filter"},
    {CALTOFAL_NO_GATEWAY, "no-gateway", "there is no gateway of that name"},
    {CALTOFAL_STORE_BUSY, "store-busy", "the store stayed locked by another process"},
    {CALTOFAL_STORE_FAILED, "store-failed", "the store can not be read or written"},
    {CALTOFAL_NO_MEMORY, "no-memory", "out of memory"},
};

// NULL for a code that the layer does not use.
constexpr const CodeMeaning *findCode(int code) {
    for (const CodeMeaning &row : kCodeMeanings) {
        if (row.code == code) {
            return &row;
        }
    }
    return nullptr;
}

// By its name in the table; NULL when there is none.
constexpr const CodeMeaning *findCode(std::string_view name) {
    for (const CodeMeaning &row : kCodeMeanings) {
        if (row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace sandbox
