// SPDX-License-Identifier: MIT
//
// The names of the codes with which the sandbox's layer refuses a message. What they mean: caltofal_layerCodeText().
#pragma once

#include "caltofal.h"

#include <string_view>

namespace sandbox {

struct CodeName {
    int code; // CaltofalLayerCode
    std::string_view name;
};

inline constexpr CodeName kCodeNames[] = {
    {CALTOFAL_BAD_MESSAGE, "bad-message"},
    {CALTOFAL_ABSENT_OBJECT, "absent-object"},
    {CALTOFAL_UNKNOWN_PARAMETER, "unknown-parameter"},
    {CALTOFAL_READ_ONLY, "read-only"},
    {CALTOFAL_WRONG_TYPE, "wrong-type"},
    {CALTOFAL_OUT_OF_RANGE, "out-of-range"},
    {CALTOFAL_NOT_A_TABLE, "not-a-table"},
    {CALTOFAL_NO_MATCH, "no-match"},
    {CALTOFAL_NO_GATEWAY, "no-gateway"},
    {CALTOFAL_STORE_BUSY, "store-busy"},
    {CALTOFAL_STORE_FAILED, "store-failed"},
    {CALTOFAL_NO_MEMORY, "no-memory"},
};

// NULL for a code that the layer does not use.
constexpr const CodeName *findCode(int code) {
    for (const CodeName &row : kCodeNames) {
        if (row.code == code) {
            return &row;
        }
    }
    return nullptr;
}

// By its name in the table; NULL when there is none.
constexpr const CodeName *findCode(std::string_view name) {
    for (const CodeName &row : kCodeNames) {
        if (row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace sandbox
