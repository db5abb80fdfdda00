// SPDX-License-Identifier: MIT
#include "keyword.h"

#include <cstring>
#include <span>

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

uint32_t codeOf(const char *word, std::span<const Keyword> table) {
    for (const Keyword &row : table) {
        if (isKeyword(word, row.word)) {
            return row.code;
        }
    }
    return 0;
}

} // namespace

uint32_t mainOperation(const char *word) {
    return codeOf(word, kMain);
}

uint32_t subOperation(const char *word) {
    return codeOf(word, kSub);
}

bool isKeyword(const char *word, const char *keyword) {
    return word && strcmp(word, keyword) == 0;
}

const ExtendedOperation &extendedOperation(const char *word) {
    for (const ExtendedOperation &row : kExtended) {
        if (isKeyword(word, row.word)) {
            return row;
        }
    }
    return kUnknown;
}

} // namespace frame
