// SPDX-License-Identifier: MIT
// The requests that the network pages make, and how they report a failed one.
#pragma once

#include "message.h"
#include "trace.h"

namespace network {

// The whole object, through faltocal_send_main().
inline int getObject(MsgHeader *message, const char *object) {
    return faltocal_send_main(message, object, "get", "get", 0);
}

// One parameter of an object, through faltocal_send_main().
inline int getParam(MsgHeader *message, const char *object, const char *param) {
    return faltocal_send_main(message, object, "get", "get", 1, param);
}

// The whole object, through faltocal_SendMultiObj(): the answer's own code.
inline int getTable(MsgHeader *message, const char *object) {
    return faltocal_SendMultiObj(1, 256, 2, message, object, "get", "get", 0);
}

// The instances of a table whose parameter has a value.
inline int getFiltered(MsgHeader *message, const char *object, const char *param, const char *value) {
    return faltocal_SendMultiObj(1, 256, 2, message, object, "get_filter_by_param_value", "get", 1, param, value);
}

// Codes of the layer that some pages take for an answer.
inline constexpr int kAbsent = CALTOFAL_ABSENT_OBJECT;
inline constexpr int kNoMatch = CALTOFAL_NO_MATCH;

// Traces a failed request with its code and the text of its page; -1.
inline int failed(int code, const char *text, int line = __builtin_LINE(),
                  const char *function = __builtin_FUNCTION()) {
    frame::traceCode(code, line, function);
    PRINT_TO_CONSOLE("%s", text);
    return -1;
}

} // namespace network
