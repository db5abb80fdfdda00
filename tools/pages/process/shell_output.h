// SPDX-License-Identifier: MIT
// What the shell commands that the library runs write past their results.
#pragma once

#include <string>

namespace pages {

// While it lives, what commands run by its thread write on standard error (with system(), on standard output too) goes
// into a memory file, so that the process's own streams carry nothing but its own words. One at a time for a thread.
class ShellOutput {
  public:
    ShellOutput();
    ShellOutput(const ShellOutput &) = delete;
    ShellOutput &operator=(const ShellOutput &) = delete;
    ~ShellOutput() { end(); }

    // Ends the capture and hands what there is to whoever takes the output. The first line, "" for none; it tells why
    // a command failed.
    std::string end();

    // Where this thread's commands write to; -1 where nothing is captured.
    static int descriptor();

  private:
    static void capture(int descriptor);

    int memory_;
};

// Throws a Failure with what a shell command complained about in brackets, when it did.
[[noreturn]] void failOfShell(const std::string &message, const std::string &complaint);

// The library's own work files serve one call at a time: while one lives, others of the process wait.
class DeviceTurn {
  public:
    DeviceTurn();
    DeviceTurn(const DeviceTurn &) = delete;
    DeviceTurn &operator=(const DeviceTurn &) = delete;
    ~DeviceTurn();
};

} // namespace pages
