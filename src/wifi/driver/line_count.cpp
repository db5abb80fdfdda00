// SPDX-License-Identifier: MIT
// How many lines a file has.
#include "caltofal.h"
#include "wifi/driver/file.h"
#include "wifi/driver/line_blocks.h"

using namespace wifi;

int GetFileLineCnt(const char *path) {
    File file;
    if (!path || !*path || !file.open(path)) {
        return 0;
    }
    return LineBlocks<1000>(file).count();
}
