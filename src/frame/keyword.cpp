// SPDX-License-Identifier: MIT
#include "frame/keyword.h"

#include <cstddef>

namespace frame {
namespace {

constexpr ExtendedOperation kMain[] = {
    {"get", true, false, 1, 0x1004},
    {"get_def_val", false, false, 1, 0x44},
    {"get_leaf_node", false, false, 1, 0x1100},
    {"get_filter_by_param_value", false, true, 1, 0x1100},
    {"set", true, false, 2, 4},
    {"set_only_db", false, false, 2, 4},
    {"factoryreset", true, false, 32, 4},
    {"backup", true, false, 64, 4},
    {"reboot", true, false, 128, 4},
    {"fwupgrade", true, false, 256, 4},
};

constexpr ExtendedOperation kUnknown = {};

struct SubOperation {
    char word[4];
    uint8_t code;
};

constexpr SubOperation kSub[] = {
    {"get", 8}, {"set", 4}, {"add", 1}, {"del", 2}, {"act", 16},
};

// Words are too short for a call of strcmp().
bool same(const char *word, const char *keyword) {
    for (; *word == *keyword; ++word, ++keyword) {
        if (!*word) {
            return true;
        }
    }
    return false;
}

constexpr bool isGet(const char *word) {
    return word[0] == 'g' && word[1] == 'e' && word[2] == 't' && word[3] == '\0';
}

static_assert(isGet(kMain[0].word) && isGet(kSub[0].word));

// The row of a word, or nullptr. Almost every request is a get, the first row of each table.
template <class Row, size_t Count>
const Row *find(const Row (&table)[Count], const char *word) {
    if (word) {
        if (isGet(word)) {
            return table;
        }
        for (const Row &row : table) {
            if (same(word, row.word)) {
                return &row;
            }
        }
    }
    return nullptr;
}

} // namespace

uint32_t mainOperation(const char *word) {
    const ExtendedOperation *row = find(kMain, word);
    return row && row->isMain ? row->mainOper : 0;
}

uint32_t subOperation(const char *word) {
    const SubOperation *row = find(kSub, word);
    return row ? row->code : 0;
}

const ExtendedOperation &extendedOperation(const char *word) {
    const ExtendedOperation *row = find(kMain, word);
    return row ? *row : kUnknown;
}

} // namespace frame
