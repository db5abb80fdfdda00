// SPDX-License-Identifier: MIT
// How the command line waits: with a line on the terminal, until a signal comes.
#pragma once

#include "caltofal/terminal.h"
#include "pages/process/wait.h"

namespace cli {

// Once it has begun, and while it lives, the signals of signals.h end a wait rather than the process.
class TerminalWait : public pages::Wait {
  public:
    ~TerminalWait() override;

    void begin() override;
    bool pause(std::chrono::milliseconds time) override;
    bool cancelled() override;
    void progress(const std::string &what, std::chrono::milliseconds gone, std::chrono::milliseconds most) override;

  private:
    Progress line_;
    bool deferredBefore_ = false; // by another wait around this one
    bool begun_ = false;
};

} // namespace cli
