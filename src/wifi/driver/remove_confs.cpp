// SPDX-License-Identifier: MIT
// The SDK's generated Wi-Fi configuration.
#include "caltofal.h"
#include "frame/pipe.h"

#include <unistd.h>

using namespace frame;

int Remove_Confs_File(void) {
    if (access("/opt/lantiq/wave/confs", F_OK) == 0) {
        runShell("rm -rf /opt/lantiq/wave/confs/*");
    }
    return 0;
}
