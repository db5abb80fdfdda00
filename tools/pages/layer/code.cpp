// SPDX-License-Identifier: MIT
#include "pages/layer/code.h"

#include "caltofal.h"

namespace pages {
namespace {

struct Row {
    int code;
    Category category;
    const char *meaning;
};

constexpr Row kRows[] = {
    {CALTOFAL_BAD_MESSAGE, Category::Failed, "the message is malformed"},
    {CALTOFAL_ABSENT_OBJECT, Category::Absent, "the object does not exist"},
    {CALTOFAL_UNKNOWN_PARAMETER, Category::Absent, "the object has no such parameter"},
    {CALTOFAL_READ_ONLY, Category::Refused, "the parameter or table cannot be written"},
    {CALTOFAL_WRONG_TYPE, Category::Refused, "the value is not of the parameter's type"},
    {CALTOFAL_OUT_OF_RANGE, Category::Refused, "the value is outside the parameter's range, length or enumeration"},
    {CALTOFAL_NOT_A_TABLE, Category::Refused, "add on what is no table, or del on what is no instance"},
    {CALTOFAL_NO_MATCH, Category::Absent, "no instance matches the filter"},
    {CALTOFAL_NO_GATEWAY, Category::NoLayer, "there is no gateway to talk to"},
    {CALTOFAL_STORE_BUSY, Category::NoLayer, "the store stayed locked by another process"},
    {CALTOFAL_STORE_FAILED, Category::NoLayer, "the store cannot be read or written"},
    {CALTOFAL_NO_MEMORY, Category::Failed, "out of memory"},
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

Category categoryOf(int code) {
    const Row *row = find(code);
    return row ? row->category : Category::Failed;
}

std::string meaningOf(int code) {
    const Row *row = find(code);
    return row ? row->meaning : "the configuration layer answered " + std::to_string(code);
}

} // namespace pages
