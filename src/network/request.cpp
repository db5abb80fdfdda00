// SPDX-License-Identifier: MIT
#include "network/request.h"

#include "frame/trace.h"

namespace network {

int getObject(MsgHeader *message, const char *object) {
    return faltocal_send_main(message, object, "get", "get", 0);
}

int getParam(MsgHeader *message, const char *object, const char *param) {
    return faltocal_send_main(message, object, "get", "get", 1, param);
}

int getTable(MsgHeader *message, const char *object) {
    return faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, object, "get", "get", 0);
}

int getFiltered(MsgHeader *message, const char *object, const char *param, const char *value) {
    return faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, object,
                                 "get_filter_by_param_value", "get", 1, param, value);
}

int failed(int code, const char *text, int line, const char *function) {
    frame::traceCode(code, text, {line, function});
    return -1;
}

} // namespace network
