// SPDX-License-Identifier: MIT
// The files that surveys leave behind, one for each band.
#include "caltofal.h"
#include "frame/pipe.h"
#include "wifi/driver/command_text.h"

using namespace frame;
using namespace wifi;

int CombineScanResultFiles(const char *first, const char *second, const char *target) {
    if (!first || !*second || !*target) {
        return 0;
    }
    char command[1024];
    formatCut(command, sizeof(command), "cat %s > %s; cat %s >> %s", first, target, second, target);
    runShell(command);
    return GetFileLineCnt(target);
}
