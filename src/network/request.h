// SPDX-License-Identifier: MIT
// The requests that the network pages make, how they report a failed one, and a page as one call.
#pragma once

#include "frame/message.h"
#include "frame/page.h"
#include "frame/trace.h"

namespace network {

// The whole object, through faltocal_send_main(): 0, or -1.
int getObject(MsgHeader *message, const char *object);

// One parameter of an object, likewise.
int getParam(MsgHeader *message, const char *object, const char *param);

// The whole object, through faltocal_SendMultiObj(): 0, or the layer's own code.
int getObjectForCode(MsgHeader *message, const char *object);

// One parameter of an object, likewise.
int getParamForCode(MsgHeader *message, const char *object, const char *param);

// The instances of a table whose parameter has a value, likewise.
int getInstances(MsgHeader *message, const char *table, const char *param, const char *value);

// Traces a failed request with its code and the text of its page. Always -1.
int traceFailure(int code, const char *text, frame::Spot spot = frame::Spot());

int fetchRecord(const frame::PageHead &page, void *record, const char *failure, frame::Spot spot);

// Fills a record from the object of its page. 0, or -1 with a trace of the caller's place and the text `failure`.
template <class Record, size_t Count, size_t PathSize>
int fetch(const frame::Page<Record, Count, PathSize> &page, std::type_identity_t<Record> &record, const char *failure,
          frame::Spot spot = frame::Spot()) {
    return fetchRecord(page.head, &record, failure, spot);
}

} // namespace network
