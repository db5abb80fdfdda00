// SPDX-License-Identifier: MIT
// What the shell commands that the library runs write on the tool's own standard output and standard error.
#pragma once

#include <string>

namespace cli {

// While it lives, both descriptors lead into a memory file, so that the tool's streams carry nothing but its own words.
// The trace keeps going to the real standard error.
class ShellOutput {
  public:
    ShellOutput();
    ShellOutput(const ShellOutput &) = delete;
    ShellOutput &operator=(const ShellOutput &) = delete;
    ~ShellOutput() { end(); }

    // Ends the capture and hands what there is to the trace. The first line, "" for none; it tells why a command
    // failed.
    std::string end();

  private:
    int memory_;
    int out_;
    int err_;
};

// Throws a Failure with what a shell command complained about in brackets, when it did.
[[noreturn]] void failOfShell(const std::string &message, const std::string &complaint);

} // namespace cli
