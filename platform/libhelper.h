/* SPDX-License-Identifier: MIT
 *
 * libhelper.h - the platform's message helpers, as the library calls them: they allocate, link and release the
 * nodes of a message (caltofal.h). All of them answer NULL when memory is short.
 */
#ifndef CALTOFAL_PLATFORM_LIBHELPER_H
#define CALTOFAL_PLATFORM_LIBHELPER_H

#include "caltofal.h"

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/* Attribute object; 2024 bytes where pointers have 4 bytes. */
typedef struct AttrObjectNode {
    char name[256];
    unsigned char platform[1752];
    ListLink params;
    ListLink link;
} AttrObjectNode;

/* Access-attribute object; 668 bytes where pointers have 4 bytes. */
typedef struct AcsAttrObjectNode {
    char name[256];
    unsigned char platform[396];
    ListLink params;
    ListLink link;
} AcsAttrObjectNode;

/* calloc() that keeps a record of the calling source unit and line. */
void *help_calloc(size_t count, size_t size, const char *unit, int line);

/* Adds a value object to a message's list. */
ObjectNode *help_addObjList(ObjectNode *listHead, const char *objectName, uint32_t objectId, uint32_t instance,
                            uint32_t subOper, uint32_t flags);

/* Adds an attribute object; `listHead` is an AttrObjectNode in disguise. */
void *help_addObjAttrList(ObjectNode *listHead, const char *objectName, uint32_t objectId, uint32_t flags);

/* Adds a parameter, with a value or (NULL) without, to a value object. */
ParamNode *help_addParamList(ObjectNode *node, const char *name, uint32_t paramId, const char *value, uint32_t flags);

/* Adds a parameter to an attribute object. */
void *help_addParamAttrList(ObjectNode *node, const char *name, uint32_t paramId, uint32_t access, uint32_t notify,
                            uint32_t minimum, uint32_t maximum, uint32_t lengthMin, uint32_t lengthMax, uint32_t flags,
                            uint32_t reserved);

/* Releases a message's lists (`what` 1), not the header. */
int help_delMsg(MsgHeader *message, int what);

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
