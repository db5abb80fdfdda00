// SPDX-License-Identifier: MIT
// Messages that functions of the library leave unreleased: a program that ends soon does not notice, a server grows.
#pragma once

#include "caltofal.h"

#include <vector>

namespace pages {

// Releases, at its end, those messages that its thread has handed to the configuration layer since its beginning and
// that nobody has released. For the functions that are known to leave one; what is called meanwhile must keep none.
class LeftMessages {
  public:
    LeftMessages();
    LeftMessages(const LeftMessages &) = delete;
    LeftMessages &operator=(const LeftMessages &) = delete;
    ~LeftMessages();

    // A message came back from the layer; one is being released. For whoever stands between library and platform.
    static void note(const MsgHeader &message);
    static void forget(const MsgHeader &message);

  private:
    LeftMessages *outer_;
    std::vector<MsgHeader> messages_;
};

} // namespace pages
