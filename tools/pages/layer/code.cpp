// SPDX-License-Identifier: MIT
#include "pages/layer/code.h"

#include "caltofal.h"

namespace cli {
namespace {

struct Row {
    int code;
    Exit exit;
    const char *meaning;
};

constexpr Row kRows[] = {
    {CALTOFAL_BAD_MESSAGE, Exit::Failed, "the message is malformed"},
    {CALTOFAL_ABSENT_OBJECT, Exit::Absent, "the object does not exist"},
    {CALTOFAL_UNKNOWN_PARAMETER, Exit::Absent, "the object has no such parameter"},
    {CALTOFAL_READ_ONLY, Exit::Refused, "the parameter or table can not be written"},
    {CALTOFAL_WRONG_TYPE, Exit::Refused, "the value is not of the parameter's type"},
    {CALTOFAL_OUT_OF_RANGE, Exit::Refused, "the value is outside the parameter's range, length or enumeration"},
    {CALTOFAL_NOT_A_TABLE, Exit::Refused, "add on what is no table, or del on what is no instance"},
    {CALTOFAL_NO_MATCH, Exit::Absent, "no instance matches the filter"},
    {CALTOFAL_NO_GATEWAY, Exit::NoLayer, "there is no gateway to talk to"},
    {CALTOFAL_STORE_BUSY, Exit::NoLayer, "the store stayed locked by another process"},
    {CALTOFAL_STORE_FAILED, Exit::NoLayer, "the store can not be read or written"},
    {CALTOFAL_NO_MEMORY, Exit::Failed, "out of memory"},
};

const Row *find(int code) {
    for (const Row &row : kRows) {
        if (row.code == code) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

Exit exitOf(int code) {
    const Row *row = find(code);
    return row ? row->exit : Exit::Failed;
}

std::string meaningOf(int code) {
    const Row *row = find(code);
    return row ? row->meaning : "the configuration layer answered " + std::to_string(code);
}

} // namespace cli
