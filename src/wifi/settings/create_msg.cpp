// SPDX-License-Identifier: MIT
// A header that the host fills and sends itself.
#include "frame/help_objlist.h"
#include "frame/keyword.h"

using namespace frame;

int faltocal_create_msg(MsgHeader *header, const char *operation) {
    const uint32_t mainOper = mainOperation(operation);
    if (mainOper == 0) {
        return -1;
    }
    HELP_CREATE_OBJ(header, mainOper, CALTOFAL_LIST_GET, CALTOFAL_OWNER_SINGLE);
    return 0;
}
