// SPDX-License-Identifier: MIT
#include "keyword.h"

#include <cstddef>

namespace frame {
namespace {

struct Keyword {
    char word[16];
    uint32_t code;
};

constexpr Keyword kMain[] = {
    {"get", 1}, {"set", 2}, {"factoryreset", 32}, {"backup", 64}, {"reboot", 128}, {"fwupgrade", 256},
};

constexpr Keyword kSub[] = {
    {"get", 8}, {"set", 4}, {"add", 1}, {"del", 2}, {"act", 16},
};

constexpr ExtendedOperation kExtended[] = {
    {"get", 1, 0x1004, false},
    {"get_def_val", 1, 0x44, false},
    {"get_leaf_node", 1, 0x1100, false},
    {"get_filter_by_param_value", 1, 0x1100, true},
    {"set", 2, 4, false},
    {"set_only_db", 2, 4, false},
    {"factoryreset", 32, 4, false},
    {"backup", 64, 4, false},
    {"reboot", 128, 4, false},
    {"fwupgrade", 256, 4, false},
};

constexpr ExtendedOperation kUnknown = {"", 0, 0, false};

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

static_assert(isGet(kMain[0].word) && isGet(kSub[0].word) && isGet(kExtended[0].word));

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

template <size_t Count>
uint32_t codeOf(const Keyword (&table)[Count], const char *word) {
    const Keyword *row = find(table, word);
    return row ? row->code : 0;
}

} // namespace

uint32_t mainOperation(const char *word) {
    return codeOf(kMain, word);
}

uint32_t subOperation(const char *word) {
    return codeOf(kSub, word);
}

const ExtendedOperation &extendedOperation(const char *word) {
    const ExtendedOperation *row = find(kExtended, word);
    return row ? *row : kUnknown;
}

} // namespace frame
