// SPDX-License-Identifier: MIT
//
// The library's releases bind to the function below, as its requests do to those of request_log.cpp.
#include "pages/layer/left_messages.h"

#include <dlfcn.h>

namespace pages {
namespace {

thread_local LeftMessages *innermostMessages = nullptr;

int releaseReal(MsgHeader *message, int what) {
    using Release = int (*)(MsgHeader *, int);
    static const auto real = reinterpret_cast<Release>(dlsym(RTLD_NEXT, "help_delMsg"));
    return real ? real(message, what) : -1;
}

} // namespace

LeftMessages::LeftMessages() : outer_(innermostMessages) {
    innermostMessages = this;
}

LeftMessages::~LeftMessages() {
    innermostMessages = outer_;
    for (MsgHeader &message : messages_) {
        releaseReal(&message, 1);
    }
}

// A message is known by its list: its header may be gone, and another's be in the same place.
void LeftMessages::forget(const MsgHeader &message) {
    if (innermostMessages && message.objectList) {
        std::erase_if(innermostMessages->messages_,
                      [&](const MsgHeader &one) { return one.objectList == message.objectList; });
    }
}

void LeftMessages::note(const MsgHeader &message) {
    if (innermostMessages && message.objectList) {
        forget(message);
        innermostMessages->messages_.push_back(message);
    }
}

} // namespace pages

extern "C" __attribute__((visibility("default"))) int help_delMsg(MsgHeader *message, int what) {
    if (message) {
        pages::LeftMessages::forget(*message);
    }
    return pages::releaseReal(message, what);
}
