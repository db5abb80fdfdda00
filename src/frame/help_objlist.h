// SPDX-License-Identifier: MIT
// Mirror of the platform's header help_objlist: the helpers with which a message is initialised and filled.
#pragma once

#include "caltofal.h"
#include "libhelper.h"

namespace frame {

// Initialises a header, whatever it held, and allocates its list head.
void HELP_CREATE_OBJ(MsgHeader *header, uint32_t mainOper, uint32_t listFlags, uint32_t owner);

// Adds an object to be read; the sub-operation is not passed for a get.
ObjectNode *HELP_OBJECT_GET(ObjectNode *listHead, const char *objectName, uint32_t listFlags);

// Adds a parameter to be read.
void HELP_PARAM_GET(ObjectNode *node, const char *name, uint32_t listFlags);

// Adds a parameter with a value: to be written, or as a filter.
inline void HELP_PARAM_SET(ObjectNode *node, const char *name, const char *value) {
    help_addParamList(node, name, 0, value, 0);
}

} // namespace frame
