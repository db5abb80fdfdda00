// SPDX-License-Identifier: MIT
// Mirror of the platform's header help_objlist: the inline helpers with which a message is initialised and filled.
#pragma once

#include "caltofal.h"
#include "frame/log.h"
#include "libhelper.h"

namespace frame {

// Which kind of node a message's list flags ask for; the first matching test wins.
enum class NodeKind : uint8_t { Value, Attribute, AccessAttribute, None };

constexpr NodeKind nodeKind(uint32_t listFlags) {
    if ((listFlags & CALTOFAL_VALUE_KINDS) != 0) {
        return NodeKind::Value;
    }
    if ((listFlags & SOPT_OBJATTR) != 0) {
        return NodeKind::Attribute;
    }
    return (listFlags & SOPT_OBJACSATTR) != 0 ? NodeKind::AccessAttribute : NodeKind::None;
}

// Allocates a list head of one kind, linked to itself; nullptr when memory is short. The two lines are those of the
// allocation and of its failure in the platform's header.
template <class Node>
ObjectNode *HELP_CREATE_LIST_HEAD(int allocationLine, int failureLine) {
    auto *head = static_cast<Node *>(help_calloc(1, sizeof(Node), "help_objlist", allocationLine));
    if (!head) {
        logCritical("faltocal{%s, %d}: malloc failed\n", "HELP_CREATE_OBJ", failureLine);
        return nullptr;
    }
    head->link.next = head->link.prev = &head->link;
    return reinterpret_cast<ObjectNode *>(head);
}

// Initialises a header, whatever it held, and allocates its list head.
inline void HELP_CREATE_OBJ(MsgHeader *header, uint32_t mainOper, uint32_t listFlags, uint32_t owner) {
    *header = {mainOper, listFlags, owner, 1, 0, nullptr};
    switch (nodeKind(listFlags)) {
    case NodeKind::Value:
        header->objectList = HELP_CREATE_LIST_HEAD<ObjectNode>(99, 102);
        break;
    case NodeKind::Attribute:
        header->objectList = HELP_CREATE_LIST_HEAD<AttrObjectNode>(111, 114);
        break;
    case NodeKind::AccessAttribute:
        header->objectList = HELP_CREATE_LIST_HEAD<AcsAttrObjectNode>(124, 127);
        break;
    case NodeKind::None:
        logError("faltocal{%s, %d}: Pass Proper Objlist Flag (i.e SOPT_OBJVALUE, SOPT_OBJATTR, SOPT_OBJACSATTR\n",
                 "HELP_CREATE_OBJ", 135);
        break;
    }
}

// Adds an object to be read; the sub-operation is not passed for a get.
inline ObjectNode *HELP_OBJECT_GET(ObjectNode *listHead, const char *objectName, uint32_t listFlags) {
    switch (nodeKind(listFlags)) {
    case NodeKind::Value:
        return help_addObjList(listHead, objectName, 0, 0, 0, 0);
    case NodeKind::Attribute:
        return static_cast<ObjectNode *>(help_addObjAttrList(listHead, objectName, 0, 0));
    default:
        logError("faltocal{%s, %d}:Error in Objlist Construction, Pass proper flag(i.e SOPT_OBJVALUE, SOPT_OBJATTR\n",
                 "HELP_OBJECT_GET", 241);
        return nullptr;
    }
}

// Adds a parameter to be read.
inline void HELP_PARAM_GET(ObjectNode *node, const char *name, uint32_t listFlags) {
    switch (nodeKind(listFlags)) {
    case NodeKind::Value:
        help_addParamList(node, name, 0, nullptr, 0);
        break;
    case NodeKind::Attribute:
        help_addParamAttrList(node, name, 0, 0, 0, 0, 0, 0, 0, 0, 0);
        break;
    default:
        logError("faltocal{%s, %d}:Error in Objlist Construction, Pass proper flag(i.e SOPT_OBJVALUE, SOPT_OBJATTR\n",
                 "HELP_PARAM_GET", 267);
        break;
    }
}

// Adds a parameter with a value: to be written, or as a filter.
inline void HELP_PARAM_SET(ObjectNode *node, const char *name, const char *value) {
    help_addParamList(node, name, 0, value, 0);
}

} // namespace frame
