// SPDX-License-Identifier: MIT
// Escaping for a UCI command line in the shell.
#include "caltofal.h"

namespace {

// What a character becomes, or nullptr when it stays. The quotes of both forms are escaped, whichever the host
// puts around the text.
const char *escape(char c) {
    switch (c) {
    case '\\':
        return "\\\\";
    case '"':
        return "\\\"";
    case '\'':
        return R"('\'')"; // ends the quoted word, adds a quote, opens the next word
    default:
        return nullptr;
    }
}

} // namespace

int ConvSpecialChar_forUciCli(const char *source, char *target) {
    for (; *source; ++source) {
        const char *escaped = escape(*source);
        if (!escaped) {
            *target++ = *source;
            continue;
        }
        while (*escaped) {
            *target++ = *escaped++;
        }
    }
    *target = '\0';
    return 0;
}
