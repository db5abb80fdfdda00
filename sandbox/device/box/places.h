// SPDX-License-Identifier: MIT
//
// Where the box finds its parts on the host.
#pragma once

#include "store/location.h"

#include <string>

namespace box {

struct Places {
    std::string prefix;   // what the tool was installed to, or its build tree: bin/, lib/ and so on are in it
    std::string device;   // the device's own files, by their paths on the device
    std::string programs; // caltofal-box-init and caltofal-device-model
    std::string bwrap, busybox;
};

// Throws an Obstacle when something is missing.
Places findPlaces();

// What a gateway's device keeps between two boxes: databases, logs, survey results. Made when it is not there yet. Who
// may not write there gets a copy, which is gone at scope end.
class State {
  public:
    explicit State(const sandbox::Location &gateway);
    State(const State &) = delete;
    State &operator=(const State &) = delete;
    ~State();

    const std::string &directory() const { return directory_; }
    // The file that cannot be written, and why; "" where nothing is lost.
    const std::string &obstacle() const { return obstacle_; }

  private:
    std::string directory_;
    std::string obstacle_;
};

// Deletes it, if it is there.
void removeState(const sandbox::Location &gateway);

// The console's file in it.
std::string consoleFile(const sandbox::Location &gateway);

// The daemons' log in it.
std::string messagesFile(const sandbox::Location &gateway);

// The program as PATH has it; "" when it has none.
std::string findProgram(const std::string &name);

} // namespace box
