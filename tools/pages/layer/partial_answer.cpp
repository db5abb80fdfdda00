// SPDX-License-Identifier: MIT
#include "pages/layer/partial_answer.h"

#include "pages/layer/message.h"

#include <utility>

namespace pages {
namespace {

thread_local bool wanted = false;

Message emptyLike(const MsgHeader &message) {
    Message result(message.mainOper, message.listFlags);
    result.header()->owner = message.owner;
    return result;
}

// In a request a filter is a parameter with a value.
Object requestOf(const Object &asked) {
    Object result{asked.name};
    for (const Parameter &parameter : asked.parameters) {
        (parameter.value.empty() ? result.parameters : result.filters).push_back(parameter);
    }
    return result;
}

// All objects of one list go to the end of the other.
void moveObjects(ListLink &from, ListLink &to) {
    if (from.next == &from) {
        return;
    }
    from.next->prev = to.prev;
    from.prev->next = &to;
    to.prev->next = from.next;
    to.prev = from.prev;
    from.next = from.prev = &from;
}

} // namespace

PartialAnswers::PartialAnswers() : before_(std::exchange(wanted, true)) {}

PartialAnswers::~PartialAnswers() {
    wanted = before_;
}

bool PartialAnswers::areWanted() {
    return wanted;
}

int answerInPart(MsgHeader *message, const std::vector<Object> &asked, int (*get)(MsgHeader *)) {
    const Message answer = emptyLike(*message);
    for (size_t i = 0; asked.size() > 1 && i < asked.size(); ++i) { // one alone is what the gateway lacks
        Message piece = emptyLike(*message);
        piece.add(requestOf(asked[i]), CALTOFAL_SUBOPER_GET);
        if (const int code = get(piece.header()); code != 0) {
            return code;
        }
        moveObjects(piece.header()->objectList->link, answer.header()->objectList->link);
    }
    std::swap(*message, *answer.header());
    return 0;
}

} // namespace pages
