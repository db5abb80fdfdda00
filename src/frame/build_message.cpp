// SPDX-License-Identifier: MIT
// Building a message: header, objects, parameters, filters.
#include "frame/help_objlist.h"
#include "frame/log.h"

using namespace frame;

MsgHeader *faltocal_createMessage(uint32_t mainOper, uint32_t listFlags) {
    auto *header = static_cast<MsgHeader *>(help_calloc(1, sizeof(MsgHeader), "FaltoCal", 1395));
    if (!header) {
        return nullptr;
    }
    HELP_CREATE_OBJ(header, mainOper, listFlags, CALTOFAL_OWNER_HOST);
    return header;
}

int faltocal_FillObject(ObjectNode **outNode, ObjectNode *listHead, const char *objectName, uint32_t mainOper,
                        uint32_t subOper, uint32_t listFlags) {
    if (mainOper == CALTOFAL_OPER_GET) {
        *outNode = HELP_OBJECT_GET(listHead, objectName, listFlags);
        return *outNode ? 0 : -1;
    }
    if (mainOper == CALTOFAL_OPER_SET) {
        if (subOper != CALTOFAL_SUBOPER_ADD && subOper != CALTOFAL_SUBOPER_DELETE && subOper != CALTOFAL_SUBOPER_SET) {
            return -1;
        }
        *outNode = help_addObjList(listHead, objectName, 0, 0, subOper, 0);
    }
    return 0;
}

int faltocal_FillParam(ObjectNode **node, uint32_t mainOper, const char *paramName, uint32_t paramId,
                       const char *value) {
    if (!paramName && paramId == 0) {
        logError("faltocal{%s, %d}:Either of Parameter Name or Param ID is mandatory\n", "faltocal_FillParam", 120);
        return -1;
    }
    if (mainOper == CALTOFAL_OPER_SET) {
        HELP_PARAM_SET(*node, paramName, value);
    } else if (mainOper == CALTOFAL_OPER_GET) {
        HELP_PARAM_GET(*node, paramName, SOPT_OBJVALUE);
    }
    return 0;
}

int faltocal_AddFilter(ObjectNode **node, const char *paramName, const char *value) {
    if (!paramName) {
        logError("faltocal{%s, %d}:Either of Parameter Name  is mandatory\n", "faltocal_AddFilter", 139);
        return -1;
    }
    HELP_PARAM_SET(*node, paramName, value);
    return 0;
}

int faltocal_finalize(MsgHeader *message) {
    return help_delMsg(message, 1);
}
