// SPDX-License-Identifier: MIT
#include "platform.h"

#include "libcal.h"
#include "libhelper.h"

#include <cstring>
#include <pthread.h>
#include <sstream>

namespace test {
namespace {

std::optional<Platform> current;

// The scripted platform keeps the sub-operation and the absence of a value in the words that the library never reads.
constexpr uint32_t kHasValue = 1;

void copyName(char (&target)[256], const char *name) {
    snprintf(target, sizeof(target), "%s", name ? name : "");
}

void link(ListLink &head, ListLink &node) {
    node.next = &head;
    node.prev = head.prev;
    head.prev->next = &node;
    head.prev = &node;
}

using For = Platform::For;

ParamNode *addParam(ListLink &head, const char *name, const char *value, For whom = For::Library) {
    auto *node = static_cast<ParamNode *>(platform().allocate(sizeof(ParamNode), whom));
    if (node) {
        copyName(node->name, name);
        snprintf(node->value, sizeof(node->value), "%s", value ? value : "");
        node->platform[0] = value ? kHasValue : 0;
        link(head, node->link);
    }
    return node;
}

template <class Node>
Node *addNode(ListLink *head, const char *name, uint32_t subOper, For whom = For::Library) {
    auto *node = head ? static_cast<Node *>(platform().allocate(sizeof(Node), whom)) : nullptr;
    if (node) {
        copyName(node->name, name);
        memcpy(node->platform, &subOper, sizeof(subOper));
        node->params.next = node->params.prev = &node->params;
        link(*head, node->link);
    }
    return node;
}

template <class Node, class Visit>
void each(ListLink &head, Visit visit) {
    for (ListLink *at = head.next; at != &head;) {
        ListLink *next = at->next;
        visit(*reinterpret_cast<Node *>(reinterpret_cast<char *>(at) - offsetof(Node, link)));
        at = next;
    }
}

Object record(ObjectNode &node) {
    Object object{node.name, {}, 0};
    memcpy(&object.subOper, node.platform, sizeof(object.subOper));
    each<ParamNode>(node.params, [&](ParamNode &param) {
        object.params.push_back({param.name, std::nullopt});
        if (param.platform[0] == kHasValue) {
            object.params.back().value = param.value;
        }
    });
    return object;
}

template <class Node>
void freeObjects(Node &head) {
    each<Node>(head.link, [&](Node &object) {
        each<ParamNode>(object.params, [&](ParamNode &param) { platform().deallocate(&param); });
        platform().deallocate(&object);
    });
    head.link.next = head.link.prev = &head.link;
}

bool lockHeld() {
    if (pthread_mutex_trylock(&capi_mutex) == 0) {
        pthread_mutex_unlock(&capi_mutex);
        return false;
    }
    return true;
}

} // namespace

Object object(const std::string &name, const std::vector<std::string> &params, uint32_t subOper) {
    Object result{name, {}, subOper};
    for (const std::string &param : params) {
        const size_t equals = param.find('=');
        result.params.push_back({param.substr(0, equals), std::nullopt});
        if (equals != std::string::npos) {
            result.params.back().value = param.substr(equals + 1);
        }
    }
    return result;
}

std::string text(const Call &call) {
    std::ostringstream out;
    out << call.function.substr(4) << ' ' << call.mainOper << "/0x" << std::hex << call.listFlags << std::dec << '/'
        << call.owner;
    for (const Object &object : call.objects) {
        out << ' ' << object.name;
        const char *separator = "(";
        for (const Param &param : object.params) {
            out << separator << param.name << (param.value ? "=" + *param.value : "");
            separator = ",";
        }
        out << (object.params.empty() ? "" : ")");
    }
    return out.str();
}

std::vector<std::string> Platform::callTexts() const {
    std::vector<std::string> texts;
    for (const Call &call : calls_) {
        texts.push_back(text(call));
    }
    return texts;
}

void *Platform::allocateHead(size_t size) {
    void *head = allocate(size, For::Library);
    const std::lock_guard lock(mutex_);
    if (head) {
        heads_.insert(head);
    }
    return head;
}

void *Platform::allocate(size_t size, For whom) {
    const std::lock_guard lock(mutex_);
    Allocations &count = whom == For::Answer ? answered_ : requested_;
    ++count.made;
    if (count.failing > 0 && --count.failing == 0) {
        return nullptr;
    }
    return *live_.insert(calloc(1, size)).first;
}

void Platform::deallocate(void *node) {
    const std::lock_guard lock(mutex_);
    heads_.erase(node);
    EXPECT_EQ(1U, live_.erase(node)) << "released twice, or never allocated";
    free(node);
}

Platform::~Platform() {
    for (void *node : live_) {
        free(node);
    }
}

int Platform::answer(const char *function, MsgHeader *message) {
    EXPECT_TRUE(lockHeld()) << function << " without the lock";
    Call call{function, message->mainOper, message->listFlags, message->owner, message->initialised, message->reserved,
              {}};
    if (message->objectList) {
        each<ObjectNode>(message->objectList->link, [&](ObjectNode &node) { call.objects.push_back(record(node)); });
    }
    calls_.push_back(call);
    if (failSend_ > 0 && --failSend_ == 0) {
        return sendCode_;
    }
    std::deque<Reply> &queue = replies_[call.objects.empty() ? "" : call.objects.back().name];
    Reply reply;
    if (queue.empty()) {
        reply = otherwise_();
    } else {
        reply = queue.front();
        queue.pop_front();
    }
    if (message->mainOper == CALTOFAL_OPER_GET && reply.code == 0 && message->objectList) {
        freeObjects(*message->objectList);
        for (const Object &object : reply.objects) {
            auto *node = addNode<ObjectNode>(&message->objectList->link, object.name.c_str(), 0, For::Answer);
            for (const Param &param : object.params) {
                if (node) {
                    addParam(node->params, param.name.c_str(), param.value.value_or("").c_str(), For::Answer);
                }
            }
        }
    }
    return reply.code;
}

int Platform::release(MsgHeader *message, int what) {
    EXPECT_EQ(1, what);
    {
        const std::lock_guard lock(mutex_);
        ++releases_;
    }
    if (!message->objectList) {
        return 0;
    }
    if ((message->listFlags & CALTOFAL_VALUE_KINDS) != 0) {
        freeObjects(*message->objectList);
    } else if ((message->listFlags & SOPT_OBJATTR) != 0) {
        freeObjects(*reinterpret_cast<AttrObjectNode *>(message->objectList));
    }
    deallocate(message->objectList);
    message->objectList = nullptr;
    return 0;
}

Platform &platform() {
    return current ? *current : current.emplace();
}

void resetPlatform() {
    current.emplace();
}

void LibraryTest::SetUp() {
    resetPlatform();
    takeConsole();
    takeSyslog();
    unfaltocalLogType = 1;
    unfaltocalLogLevel = 5;
}

void LibraryTest::TearDown() {
    if (checkNodes_) {
        EXPECT_EQ(0U, platform().nodes()) << "nodes left unreleased";
    }
    EXPECT_FALSE(lockHeld());
}

} // namespace test

using namespace test;

int cal_getValue(MsgHeader *message) {
    return platform().answer("cal_getValue", message);
}
int cal_setValue(MsgHeader *message) {
    return platform().answer("cal_setValue", message);
}
int cal_setValueToDb(MsgHeader *message) {
    return platform().answer("cal_setValueToDb", message);
}

void *help_calloc(size_t count, size_t size, const char * /*unit*/, int /*line*/) {
    return platform().allocateHead(count * size);
}

ObjectNode *help_addObjList(ObjectNode *listHead, const char *objectName, uint32_t /*objectId*/, uint32_t /*instance*/,
                            uint32_t subOper, uint32_t /*flags*/) {
    return addNode<ObjectNode>(listHead ? &listHead->link : nullptr, objectName, subOper);
}

void *help_addObjAttrList(ObjectNode *listHead, const char *objectName, uint32_t /*objectId*/, uint32_t /*flags*/) {
    return addNode<AttrObjectNode>(listHead ? &reinterpret_cast<AttrObjectNode *>(listHead)->link : nullptr, objectName,
                                   0);
}

ParamNode *help_addParamList(ObjectNode *node, const char *name, uint32_t /*paramId*/, const char *value,
                             uint32_t /*flags*/) {
    return node ? addParam(node->params, name, value) : nullptr;
}

void *help_addParamAttrList(ObjectNode *node, const char *name, uint32_t /*paramId*/, uint32_t /*access*/,
                            uint32_t /*notify*/, uint32_t /*minimum*/, uint32_t /*maximum*/, uint32_t /*lengthMin*/,
                            uint32_t /*lengthMax*/, uint32_t /*flags*/, uint32_t /*reserved*/) {
    return node ? addParam(reinterpret_cast<AttrObjectNode *>(node)->params, name, nullptr) : nullptr;
}

int help_delMsg(MsgHeader *message, int what) {
    return platform().release(message, what);
}
