// SPDX-License-Identifier: MIT
#include "cal/message.h"

#include "helper/node_words.h"
#include "libhelper.h"
#include "value/path.h"
#include "value/refusal.h"
#include "value/secret.h"

#include <new>

namespace sandbox {
namespace {

constexpr uint32_t kLeaf = CALTOFAL_LIST_MULTI | CALTOFAL_LIST_LEAF; // either bit alone means something else

[[noreturn]] void refuse(const std::string &reason) {
    throw Refusal(CALTOFAL_BAD_MESSAGE, reason);
}

void judge(const MsgHeader *message, uint32_t mainOper) {
    if (!message) {
        refuse("there is no message");
    }
    if (message->mainOper != mainOper) {
        refuse("main operation " + std::to_string(message->mainOper) + " where " + std::to_string(mainOper) +
               " is meant");
    }
    if ((message->listFlags & CALTOFAL_VALUE_KINDS) == 0) {
        refuse("the message does not hold value objects");
    }
    if (!message->objectList || !message->objectList->link.next || !caltofal_nextObject(message, nullptr)) {
        refuse("the message names no object");
    }
}

// Calls visit(node, path) for each object. A path that was cut names nothing.
template <class Visit>
void eachObject(const MsgHeader *message, Visit visit) {
    for (ObjectNode *node = nullptr; (node = caltofal_nextObject(message, node)) != nullptr;) {
        if (node->name[0] == '\0') {
            refuse("an object has an empty path");
        }
        if (readWords<ObjectWords>(*node).cut != 0) {
            throw Refusal(CALTOFAL_ABSENT_OBJECT, shownPath(node->name) + "...: a path this long names no object");
        }
        visit(*node, std::string(node->name));
    }
}

template <class Visit>
void eachParam(const ObjectNode &object, Visit visit) {
    for (ParamNode *param = nullptr; (param = caltofal_nextParam(&object, param)) != nullptr;) {
        if (param->name[0] == '\0') {
            refuse(shownPath(object.name) + ": a parameter has no name");
        }
        const uint32_t cut = readWords<ParamWords>(*param).cut;
        if ((cut & kCutName) != 0) {
            throw Refusal(CALTOFAL_UNKNOWN_PARAMETER, shownPath(object.name) + ": no parameter has a name this long");
        }
        if ((cut & kCutValue) != 0) {
            throw Refusal(CALTOFAL_OUT_OF_RANGE, shownPath(object.name) + "." + shownName(param->name) +
                                                     ": the value is too long for a message");
        }
        visit(*param);
    }
}

void exchangeRings(ListLink &a, ListLink &b) {
    std::swap(a, b);
    for (ListLink *head : {&a, &b}) {
        const ListLink *other = head == &a ? &b : &a;
        if (head->next == other) {
            head->next = head->prev = head;
        } else {
            head->next->prev = head->prev->next = head;
        }
    }
}

} // namespace

std::vector<GetRequest> getRequests(const MsgHeader *message) {
    judge(message, CALTOFAL_OPER_GET);
    std::vector<GetRequest> requests;
    eachObject(message, [&](const ObjectNode &node, std::string path) {
        GetRequest request;
        request.path = std::move(path);
        request.leaf = (message->listFlags & kLeaf) == kLeaf;
        request.defaults = (message->listFlags & CALTOFAL_LIST_DEFAULTS) != 0;
        eachParam(node, [&](const ParamNode &param) {
            if (readWords<ParamWords>(param).valued != 0) {
                request.filters.emplace_back(param.name, param.value);
            } else {
                request.names.emplace_back(param.name);
            }
        });
        requests.push_back(std::move(request));
    });
    return requests;
}

std::vector<SetRequest> setRequests(const MsgHeader *message) {
    judge(message, CALTOFAL_OPER_SET);
    std::vector<SetRequest> requests;
    eachObject(message, [&](const ObjectNode &node, std::string path) {
        SetRequest request;
        const uint32_t subOper = readWords<ObjectWords>(node).subOper;
        if (subOper != CALTOFAL_SUBOPER_ADD && subOper != CALTOFAL_SUBOPER_DELETE && subOper != CALTOFAL_SUBOPER_SET) {
            refuse(shownPath(path) + ": " + std::to_string(subOper) + " is neither add (1), delete (2) nor set (4)");
        }
        request.operation = static_cast<SetRequest::Operation>(subOper);
        request.path = std::move(path);
        eachParam(node, [&](const ParamNode &param) { request.values.emplace_back(param.name, param.value); });
        requests.push_back(std::move(request));
    });
    return requests;
}

void nameAdded(const MsgHeader &message, const std::vector<SetRequest> &requests) {
    ObjectNode *node = nullptr;
    for (const SetRequest &request : requests) {
        node = caltofal_nextObject(&message, node);
        if (!request.added.empty()) {
            node->name[request.added.copy(node->name, sizeof(node->name) - 1)] = '\0';
        }
    }
}

Answer::Answer() {
    header_.listFlags = SOPT_OBJVALUE;
    header_.objectList = static_cast<ObjectNode *>(help_calloc(1, sizeof(ObjectNode), "libcal", 0));
    if (!header_.objectList) {
        throw std::bad_alloc();
    }
    ListLink &head = header_.objectList->link;
    head.next = head.prev = &head;
}

Answer::~Answer() {
    help_delMsg(&header_, 1);
}

void Answer::add(std::string_view objectKey, std::string_view name, std::string_view value) {
    if (!last_ || lastKey_ != objectKey) {
        last_ = help_addObjList(header_.objectList, pathOf(objectKey).c_str(), 0, 0, 0, 0);
        lastKey_ = objectKey;
    }
    const std::string nameText(name);
    const std::string valueText(value);
    if (!last_ || !help_addParamList(last_, nameText.c_str(), 0, valueText.c_str(), 0)) {
        throw std::bad_alloc();
    }
}

void Answer::replace(MsgHeader &message) const {
    exchangeRings(message.objectList->link, header_.objectList->link);
}

} // namespace sandbox
