// SPDX-License-Identifier: MIT
#include "caltofal.h"

// Does no work; hosts call it.
int GetDFSChannel(void) {
    return 0;
}
