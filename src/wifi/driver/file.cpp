// SPDX-License-Identifier: MIT
#include "wifi/driver/file.h"

namespace wifi {

bool File::readStartOfLine(char (&line)[kLineSize]) {
    char &last = line[kLineSize - 2];
    last = '\0';
    if (!readLine(line)) {
        return false;
    }
    const bool complete = last == '\0' || last == '\n';
    for (int c = complete ? '\n' : 0; c != '\n' && c != EOF;) {
        c = fgetc(stream_);
    }
    return true;
}

} // namespace wifi
