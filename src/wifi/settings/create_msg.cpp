// SPDX-License-Identifier: MIT
// A header that the host fills and sends itself.
#include "frame/help_objlist.h"
#include "frame/keyword.h"

using namespace frame;

int faltocal_create_msg(MsgHeader *header, const char *operation) {
    constexpr uint32_t kListFlags = 0x1004;
    constexpr uint32_t kOwner = 32;
    const uint32_t mainOper = mainOperation(operation);
    if (mainOper == 0) {
        return -1;
    }
    HELP_CREATE_OBJ(header, mainOper, kListFlags, kOwner);
    return 0;
}
