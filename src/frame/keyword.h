// SPDX-License-Identifier: MIT
// The words of requests and their codes.
#pragma once

#include <cstdint>
#include <cstring>

namespace frame {

// Main operation of "get", "set", "factoryreset", "backup", "reboot", "fwupgrade"; 0 for another word or null.
uint32_t mainOperation(const char *word);

// Sub-operation of "get", "set", "add", "del", "act"; 0 for another word or null.
uint32_t subOperation(const char *word);

// Whether a word is not null and equals a keyword; case counts. Most words differ in the first letter: with a call for
// each of them, the LAN page costs 2.37 times its floor, where its limit is 2.36.
inline bool isKeyword(const char *word, const char *keyword) {
    return word && *word == *keyword && strcmp(word, keyword) == 0;
}

// What a new multi-object message gets from its main keyword.
struct ExtendedOperation {
    char word[26];
    bool isMain;       // a word of mainOperation() too
    bool filter;       // parameters come with values to match
    uint16_t mainOper; // 0: unknown keyword
    uint16_t listFlags;
};

// The words of mainOperation(), and "get_def_val", "get_leaf_node", "get_filter_by_param_value", "set_only_db".
const ExtendedOperation &extendedOperation(const char *word);

} // namespace frame
