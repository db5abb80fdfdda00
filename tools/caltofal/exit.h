// SPDX-License-Identifier: MIT
// How the program ends, beside the categories of a page's failures.
#pragma once

#include "pages/failure.h"

namespace cli {

constexpr int kDone = 0;
constexpr int kExitSignal = 128; // and the signal's number

// The sandbox's device box cannot be entered here.
constexpr auto kNoBox = static_cast<pages::Category>(77);

// Ended by a signal.
class Interrupted : public pages::Failure {
  public:
    Interrupted(int signal, const std::string &message)
        : Failure(static_cast<pages::Category>(kExitSignal + signal), message) {}
};

} // namespace cli
