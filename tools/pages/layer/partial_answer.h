// SPDX-License-Identifier: MIT
// A configuration layer refuses a get as a whole for one object that the gateway lacks. Functions of the library that
// make a page then show nothing of what there is: they can be given an answer without that object instead.
#pragma once

#include "pages/layer/query.h"

namespace pages {

// While it lives, gets of its thread on objects that the gateway lacks are answered with what there is of the others.
class PartialAnswers {
  public:
    PartialAnswers();
    PartialAnswers(const PartialAnswers &) = delete;
    PartialAnswers &operator=(const PartialAnswers &) = delete;
    ~PartialAnswers();

    static bool areWanted();

  private:
    bool before_;
};

// Sends what was `asked` for anew, each object alone, and puts the answers into `message`, which the layer refused.
// 0, or the code of a request that was refused for something else; `message` is then as it was. `get` answers an object
// that the gateway lacks with nothing. For whoever stands between library and platform: the layer's lock is held.
int answerInPart(MsgHeader *message, const std::vector<Object> &asked, int (*get)(MsgHeader *));

} // namespace pages
