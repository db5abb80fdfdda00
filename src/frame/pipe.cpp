// SPDX-License-Identifier: MIT
#include "frame/pipe.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace frame {

// The raw result is compared: a shell that ran and exited with 127 answers 127 * 256.
bool runShell(const char *command) {
    const int result = system(command);
    return result != 127 && result != -1;
}

void dropTrailingSpace(char *line) {
    const size_t length = strlen(line);
    if (length > 0 && isspace(static_cast<unsigned char>(line[length - 1]))) {
        line[length - 1] = '\0';
    }
}

} // namespace frame
