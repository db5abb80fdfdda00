// SPDX-License-Identifier: MIT
// The files that surveys leave behind, one for each band.
#include "caltofal.h"
#include "frame/bounded_text.h"
#include "frame/pipe.h"

using namespace frame;

int CombineScanResultFiles(const char *first, const char *second, const char *target) {
    if (!first || !*second || !*target) {
        return 0;
    }
    const BoundedText<1024> command("cat %s > %s; cat %s >> %s", first, target, second, target);
    runShell(command);
    return GetFileLineCnt(target);
}
