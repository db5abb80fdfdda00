// SPDX-License-Identifier: MIT
#include "platform.h"

#include "libcal.h"
#include "libhelper.h"
#include "pool.h"

#include <algorithm>
#include <cstring>

namespace bench {
namespace {

struct State {
    Pool<ObjectNode> objectNodes;
    Pool<ParamNode> paramNodes;
    std::vector<ObjectNode *> heads; // of the messages that are not released
    Answers answers;
    Counts counts = {};
    std::string *log = nullptr;
};

State state;

// In ParamNode::platform[0]: the parameter came with a value. In a get that makes it a filter.
constexpr uint32_t kValued = 1;

void countCall(const char *function, const char *first, const char *second = "", uint32_t number = 0) {
    ++state.counts.calls;
    if (state.log) {
        *state.log += std::string(function) + ' ' + first + ' ' + second + ' ' + std::to_string(number) + '\n';
    }
}

template <class Node>
Node *take(Pool<Node> &pool) {
    ++state.counts.nodes;
    return pool.take();
}

template <size_t Size>
void copyText(char (&field)[Size], const char *text) {
    const size_t length = std::min(strlen(text), Size - 1);
    memcpy(field, text, length); // the terminator is the zeroed node's
}

void append(ListLink &head, ListLink &link) {
    link = {&head, head.prev};
    head.prev->next = &link;
    head.prev = &link;
}

ObjectNode *addObject(ObjectNode &head, const char *name) {
    ObjectNode *node = take(state.objectNodes);
    copyText(node->name, name);
    node->params = {&node->params, &node->params};
    append(head.link, node->link);
    return node;
}

ParamNode *addParam(ObjectNode &object, const char *name, const char *value) {
    ParamNode *node = take(state.paramNodes);
    copyText(node->name, name);
    if (value) {
        copyText(node->value, value);
        node->platform[0] = kValued;
    }
    append(object.params, node->link);
    return node;
}

template <class Node>
Node *nodeOf(ListLink *link) {
    return reinterpret_cast<Node *>(reinterpret_cast<char *>(link) - offsetof(Node, link));
}

// Gives all objects of a list back; the head stays, empty.
void clear(ListLink &head) {
    for (ListLink *at = head.next; at != &head;) {
        auto *object = nodeOf<ObjectNode>(at);
        at = at->next;
        for (ListLink *link = object->params.next; link != &object->params;) {
            auto *param = nodeOf<ParamNode>(link);
            link = link->next;
            state.paramNodes.giveBack(param);
        }
        state.objectNodes.giveBack(object);
    }
    head = {&head, &head};
}

Answer *findAnswer(std::string_view path) {
    for (Answer &answer : state.answers) {
        if (answer.path == path) {
            return &answer;
        }
    }
    return nullptr;
}

Param *findParam(Object &object, std::string_view name) {
    for (Param &param : object.params) {
        if (param.name == name) {
            return &param;
        }
    }
    return nullptr;
}

// Whether an object has all values that a request filters by.
bool matches(Object &object, ObjectNode &request) {
    for (ListLink *at = request.params.next; at != &request.params; at = at->next) {
        const auto *asked = nodeOf<ParamNode>(at);
        if (asked->platform[0] == kValued) {
            const Param *held = findParam(object, asked->name);
            if (!held || held->value != asked->value) {
                return false;
            }
        }
    }
    return true;
}

// Answers one object: the parameters that the request names, or all.
void append(ObjectNode &head, Object &object, ObjectNode &request) {
    ObjectNode *node = addObject(head, object.name.c_str());
    bool named = false;
    for (ListLink *at = request.params.next; at != &request.params; at = at->next) {
        const auto *asked = nodeOf<ParamNode>(at);
        if (asked->platform[0] != kValued) {
            named = true;
            if (const Param *held = findParam(object, asked->name)) {
                addParam(*node, held->name.c_str(), held->value.c_str());
            }
        }
    }
    if (!named) {
        for (const Param &param : object.params) {
            addParam(*node, param.name.c_str(), param.value.c_str());
        }
    }
}

void append(ObjectNode &head, Answer &answer, ObjectNode &request) {
    for (Object &object : answer.objects) {
        if (matches(object, request)) {
            append(head, object, request);
        }
    }
}

// Answers all objects that a message asks for in the place of what it held.
int answer(ObjectNode &list) {
    ListLink asked = list.link;
    asked.next->prev = asked.prev->next = &asked;
    list.link = {&list.link, &list.link};
    int result = 0;
    for (ListLink *at = asked.next; at != &asked && result == 0; at = at->next) {
        auto *request = nodeOf<ObjectNode>(at);
        Answer *found = findAnswer(request->name);
        result = found ? 0 : CALTOFAL_ABSENT_OBJECT;
        if (found) {
            append(list, *found, *request);
        }
    }
    clear(asked);
    return result;
}

int store(Object &object, ObjectNode &from) {
    for (ListLink *at = from.params.next; at != &from.params; at = at->next) {
        const auto *param = nodeOf<ParamNode>(at);
        Param *found = findParam(object, param->name);
        if (!found) {
            return CALTOFAL_UNKNOWN_PARAMETER;
        }
        found->value = param->value;
    }
    return 0;
}

// Sets parameters of objects that are held under their own path.
int store(ObjectNode &list) {
    int result = 0;
    for (ListLink *at = list.link.next; at != &list.link && result == 0; at = at->next) {
        auto *object = nodeOf<ObjectNode>(at);
        Answer *found = findAnswer(object->name);
        result = found ? store(found->objects.front(), *object) : CALTOFAL_ABSENT_OBJECT;
    }
    return result;
}

void release(ObjectNode *head) {
    std::erase(state.heads, head);
    clear(head->link);
    state.objectNodes.giveBack(head);
}

} // namespace

void holdAnswers(Answers answers) {
    state.answers = std::move(answers);
}

Counts platformCounts() {
    return state.counts;
}

void recordCalls(std::string *log) {
    state.log = log;
}

void reclaimMessages() {
    while (!state.heads.empty()) {
        release(state.heads.back());
    }
}

} // namespace bench

using namespace bench;

int cal_getValue(MsgHeader *message) {
    countCall("cal_getValue", "", "", message->listFlags);
    return answer(*message->objectList);
}

int cal_setValue(MsgHeader *message) {
    countCall("cal_setValue", "", "", message->listFlags);
    return store(*message->objectList);
}

int cal_setValueToDb(MsgHeader *message) {
    countCall("cal_setValueToDb", "", "", message->listFlags);
    return store(*message->objectList);
}

// List heads of value objects are all that is allocated from outside here.
void *help_calloc(size_t /*count*/, size_t size, const char * /*unit*/, int /*line*/) {
    countCall("help_calloc", "", "", static_cast<uint32_t>(size));
    if (size != sizeof(ObjectNode)) {
        return nullptr;
    }
    return state.heads.emplace_back(take(state.objectNodes));
}

ObjectNode *help_addObjList(ObjectNode *listHead, const char *objectName, uint32_t /*objectId*/, uint32_t /*instance*/,
                            uint32_t subOper, uint32_t /*flags*/) {
    countCall("help_addObjList", objectName, "", subOper);
    return addObject(*listHead, objectName);
}

ParamNode *help_addParamList(ObjectNode *node, const char *name, uint32_t /*paramId*/, const char *value,
                             uint32_t /*flags*/) {
    countCall("help_addParamList", name, value ? value : "");
    return addParam(*node, name, value);
}

void *help_addObjAttrList(ObjectNode * /*listHead*/, const char *objectName, uint32_t /*objectId*/,
                          uint32_t /*flags*/) {
    countCall("help_addObjAttrList", objectName);
    return nullptr; // no page asks for attributes
}

void *help_addParamAttrList(ObjectNode * /*node*/, const char *name, uint32_t /*paramId*/, uint32_t /*access*/,
                            uint32_t /*notify*/, uint32_t /*minimum*/, uint32_t /*maximum*/, uint32_t /*lengthMin*/,
                            uint32_t /*lengthMax*/, uint32_t /*flags*/, uint32_t /*reserved*/) {
    countCall("help_addParamAttrList", name);
    return nullptr;
}

int help_delMsg(MsgHeader *message, int /*what*/) {
    countCall("help_delMsg", "");
    if (message->objectList) {
        release(message->objectList);
        message->objectList = nullptr;
    }
    return 0;
}
