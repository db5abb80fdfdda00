// SPDX-License-Identifier: MIT
// The files that surveys leave behind, and the SDK's generated configuration.
#include "caltofal.h"
#include "frame/pipe.h"
#include "wifi/driver/file.h"
#include "wifi/driver/formatted.h"
#include "wifi/driver/line_blocks.h"

#include <unistd.h>

using namespace frame;
using namespace wifi;

int Remove_Confs_File(void) {
    if (access("/opt/lantiq/wave/confs", F_OK) == 0) {
        runShell("rm -rf /opt/lantiq/wave/confs/*");
    }
    return 0;
}

int GetFileLineCnt(const char *path) {
    if (!path || !*path) {
        return 0;
    }
    File file(path);
    if (!file.opened()) {
        return 0;
    }
    return LineBlocks<1000>(file).count();
}

int CombineScanResultFiles(const char *first, const char *second, const char *target) {
    if (!first || !*second || !*target) {
        return 0;
    }
    runShell(Formatted<1024>("cat %s > %s; cat %s >> %s", first, target, second, target));
    return GetFileLineCnt(target);
}
