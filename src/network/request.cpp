// SPDX-License-Identifier: MIT
#include "network/request.h"

#include "frame/range.h"

using namespace frame;

namespace network {

int getObject(MsgHeader *message, const char *object) {
    return faltocal_send_main(message, object, "get", "get", 0);
}

int getParam(MsgHeader *message, const char *object, const char *param) {
    return faltocal_send_main(message, object, "get", "get", 1, param);
}

int getObjectForCode(MsgHeader *message, const char *object) {
    return faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, object, "get", "get", 0);
}

int getParamForCode(MsgHeader *message, const char *object, const char *param) {
    return faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, object, "get", "get", 1, param);
}

int getInstances(MsgHeader *message, const char *table, const char *param, const char *value) {
    return faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, table,
                                 "get_filter_by_param_value", "get", 1, param, value);
}

int traceFailure(int code, const char *text, Spot spot) {
    traceCode(code, text, spot);
    return -1;
}

int fetchRecord(const PageHead &page, void *record, const char *failure, Spot spot) {
    Message message;
    const int code = getObject(message, page.object());
    if (code != 0) {
        return traceFailure(code, failure, spot);
    }
    for (ObjectNode &object : objects(*message)) {
        fillRecord(object, page, record);
    }
    return 0;
}

} // namespace network
