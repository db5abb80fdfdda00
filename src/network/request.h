// SPDX-License-Identifier: MIT
// The requests that the network pages make, and how they report a failed one.
#pragma once

#include "frame/message.h"

namespace network {

// The whole object, through faltocal_send_main().
int getObject(MsgHeader *message, const char *object);

// One parameter of an object, through faltocal_send_main().
int getParam(MsgHeader *message, const char *object, const char *param);

// The whole object, through faltocal_SendMultiObj(): the answer's own code.
int getTable(MsgHeader *message, const char *object);

// The instances of a table whose parameter has a value.
int getFiltered(MsgHeader *message, const char *object, const char *param, const char *value);

// Traces a failed request with its code and the text of its page; -1.
int failed(int code, const char *text, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

} // namespace network
