// SPDX-License-Identifier: MIT
#include "frame/help_objlist.h"

#include "frame/log.h"

namespace frame {
namespace {

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

// Allocates a list head, linked to itself: in nodes of every kind the link comes last. nullptr when memory is short.
// The two lines are those of the allocation and of its failure in the platform's header.
ObjectNode *createListHead(size_t nodeSize, int allocationLine, int failureLine) {
    auto *head = static_cast<char *>(help_calloc(1, nodeSize, "help_objlist", allocationLine));
    if (!head) {
        logCritical("faltocal{%s, %d}: malloc failed\n", "HELP_CREATE_OBJ", failureLine);
        return nullptr;
    }
    auto *link = reinterpret_cast<ListLink *>(head + nodeSize - sizeof(ListLink));
    link->next = link->prev = link;
    return reinterpret_cast<ObjectNode *>(head);
}

} // namespace

void HELP_CREATE_OBJ(MsgHeader *header, uint32_t mainOper, uint32_t listFlags, uint32_t owner) {
    *header = {mainOper, listFlags, owner, 1, 0, nullptr};
    switch (nodeKind(listFlags)) {
    case NodeKind::Value:
        header->objectList = createListHead(sizeof(ObjectNode), 99, 102);
        break;
    case NodeKind::Attribute:
        header->objectList = createListHead(sizeof(AttrObjectNode), 111, 114);
        break;
    case NodeKind::AccessAttribute:
        header->objectList = createListHead(sizeof(AcsAttrObjectNode), 124, 127);
        break;
    case NodeKind::None:
        logError("faltocal{%s, %d}: Pass Proper Objlist Flag (i.e SOPT_OBJVALUE, SOPT_OBJATTR, SOPT_OBJACSATTR\n",
                 "HELP_CREATE_OBJ", 135);
        break;
    }
}

ObjectNode *HELP_OBJECT_GET(ObjectNode *listHead, const char *objectName, uint32_t listFlags) {
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

void HELP_PARAM_GET(ObjectNode *node, const char *name, uint32_t listFlags) {
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

} // namespace frame
