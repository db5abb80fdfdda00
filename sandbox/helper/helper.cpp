// SPDX-License-Identifier: MIT
//
// libhelper.so: allocates, links and releases the nodes of a message. Texts are cut to their fields, new nodes go
// to the end of their list, and nothing is added to a NULL list.
#include "helper/node_words.h"
#include "libhelper.h"

#include <cstddef>
#include <cstdlib>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace sandbox {
namespace {

// Parameter of an attribute object.
struct AttrParamNode {
    char name[256];
    uint32_t words[9]; // in the order of help_addParamAttrList()'s arguments
    ListLink link;
};

template <class Node>
Node *nodeOf(ListLink *link) {
    return reinterpret_cast<Node *>(reinterpret_cast<char *>(link) - offsetof(Node, link));
}

void makeRing(ListLink &head) {
    head.next = head.prev = &head;
}

// A head that was zeroed and never linked is an empty list.
void append(ListLink &head, ListLink &entry) {
    if (!head.next) {
        makeRing(head);
    }
    entry.next = &head;
    entry.prev = head.prev;
    head.prev->next = &entry;
    head.prev = &entry;
}

template <class Node, class Release>
void releaseRing(ListLink &head, Release release) {
    ListLink *link = head.next;
    while (link && link != &head) {
        ListLink *next = link->next;
        release(nodeOf<Node>(link));
        link = next;
    }
}

template <class Node, class Param>
void releaseList(void *list) {
    Node *head = static_cast<Node *>(list);
    releaseRing<Node>(head->link, [](Node *node) {
        releaseRing<Param>(node->params, [](Param *param) { std::free(param); });
        std::free(node);
    });
    std::free(head);
}

// Whether the text had to be cut. NULL counts as "".
template <size_t size>
bool copyText(char (&field)[size], const char *text) {
    const size_t length = text ? strlen(text) : 0;
    const size_t kept = length < size ? length : size - 1;
    if (kept != 0) {
        memcpy(field, text, kept);
    }
    field[kept] = '\0';
    return kept != length;
}

template <class Node>
Node *newNode() {
    return static_cast<Node *>(std::calloc(1, sizeof(Node)));
}

} // namespace
} // namespace sandbox

using namespace sandbox;

EXPORTED void *help_calloc(size_t count, size_t size, const char * /*unit*/, int /*line*/) {
    return std::calloc(count, size);
}

EXPORTED ObjectNode *help_addObjList(ObjectNode *listHead, const char *objectName, uint32_t objectId, uint32_t instance,
                                     uint32_t subOper, uint32_t flags) {
    ObjectNode *node = listHead ? newNode<ObjectNode>() : nullptr;
    if (!node) {
        return nullptr;
    }
    const bool cut = copyText(node->name, objectName);
    writeWords(*node, ObjectWords{objectId, instance, subOper, flags, cut ? kCutName : 0});
    makeRing(node->params);
    append(listHead->link, node->link);
    return node;
}

EXPORTED void *help_addObjAttrList(ObjectNode *listHead, const char *objectName, uint32_t objectId, uint32_t flags) {
    AttrObjectNode *node = listHead ? newNode<AttrObjectNode>() : nullptr;
    if (!node) {
        return nullptr;
    }
    const bool cut = copyText(node->name, objectName);
    writeWords(*node, ObjectWords{objectId, 0, 0, flags, cut ? kCutName : 0});
    makeRing(node->params);
    append(reinterpret_cast<AttrObjectNode *>(listHead)->link, node->link);
    return node;
}

EXPORTED ParamNode *help_addParamList(ObjectNode *node, const char *name, uint32_t paramId, const char *value,
                                      uint32_t flags) {
    ParamNode *param = node ? newNode<ParamNode>() : nullptr;
    if (!param) {
        return nullptr;
    }
    const uint32_t cutName = copyText(param->name, name) ? kCutName : 0;
    const uint32_t cutValue = copyText(param->value, value) ? kCutValue : 0;
    writeWords(*param, ParamWords{paramId, flags, value != nullptr, cutName | cutValue});
    append(node->params, param->link);
    return param;
}

EXPORTED void *help_addParamAttrList(ObjectNode *node, const char *name, uint32_t paramId, uint32_t access,
                                     uint32_t notify, uint32_t minimum, uint32_t maximum, uint32_t lengthMin,
                                     uint32_t lengthMax, uint32_t flags, uint32_t reserved) {
    AttrParamNode *param = node ? newNode<AttrParamNode>() : nullptr;
    if (!param) {
        return nullptr;
    }
    copyText(param->name, name);
    const uint32_t words[] = {paramId, access, notify, minimum, maximum, lengthMin, lengthMax, flags, reserved};
    static_assert(sizeof(words) == sizeof(param->words));
    memcpy(param->words, words, sizeof(words));
    append(reinterpret_cast<AttrObjectNode *>(node)->params, param->link);
    return param;
}

EXPORTED int help_delMsg(MsgHeader *message, int what) {
    if (!message || what != 1) {
        return -1;
    }
    if (!message->objectList) {
        return 0;
    }
    if (message->listFlags & CALTOFAL_VALUE_KINDS) {
        releaseList<ObjectNode, ParamNode>(message->objectList);
    } else if (message->listFlags & SOPT_OBJATTR) {
        releaseList<AttrObjectNode, AttrParamNode>(message->objectList);
    } else if (message->listFlags & SOPT_OBJACSATTR) {
        releaseList<AcsAttrObjectNode, AttrParamNode>(message->objectList);
    } else {
        return -1; // no list of an unknown kind was ever made here
    }
    message->objectList = nullptr;
    return 0;
}
