// SPDX-License-Identifier: MIT
// The requests that the network pages make, how they report a failed one, and a page as one call.
//
// A request that names no parameter is answered with the object and everything below it. Own parameters only are
// answered to "get_leaf_node" (faltocal_send_main_multi_obj()).
#pragma once

#include "frame/message.h"
#include "frame/page.h"
#include "frame/trace.h"

namespace network {

// The object and everything below it, through faltocal_send_main(): 0, or -1.
int getObject(MsgHeader *message, const char *object);

// One parameter of an object, through faltocal_send_main(): 0, or -1.
int getParam(MsgHeader *message, const char *object, const char *param);

// The object and everything below it, through faltocal_SendMultiObj(): 0, or the layer's own code. Its list flag
// CALTOFAL_LIST_LEAF does not keep to the object's own parameters: without CALTOFAL_LIST_MULTI it only chooses value
// objects.
int getObjectForCode(MsgHeader *message, const char *object);

// One parameter of an object, through faltocal_SendMultiObj(): 0, or the layer's own code.
int getParamForCode(MsgHeader *message, const char *object, const char *param);

// The instances of a table whose parameter has a value, with everything below them, through faltocal_SendMultiObj(): 0,
// or the layer's own code.
int getInstances(MsgHeader *message, const char *table, const char *param, const char *value);

// Traces a failed request with its code and the text of its page. Always -1.
int traceFailure(int code, const char *text, frame::Spot spot = frame::Spot());

int fetchRecord(const frame::PageHead &page, void *record, const char *failure, frame::Spot spot);

// Fills a record from the object of its page and from every object below it, the later over the earlier: where one of
// these has a parameter of the same name, ask for own parameters only, or fill() from the object of the right name.
// 0, or -1 with a trace of the caller's place and the text `failure`.
template <class Record, size_t Count, size_t PathSize>
int fetch(const frame::Page<Record, Count, PathSize> &page, std::type_identity_t<Record> &record, const char *failure,
          frame::Spot spot = frame::Spot()) {
    return fetchRecord(page.head, &record, failure, spot);
}

} // namespace network
