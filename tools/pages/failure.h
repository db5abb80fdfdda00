// SPDX-License-Identifier: MIT
// Why a command did not do what was asked, and the exit code that says so to scripts.
#pragma once

#include <stdexcept>
#include <string>

namespace cli {

enum class Exit {
    Done = 0,
    Failed = 1,
    Usage = 2,   // the command line is wrong
    TimeOut = 3, // waiting was in vain
    NoLayer = 4, // no gateway, or its store can not be used
    Refused = 5, // read-only, wrong type, out of range
    Absent = 10, // no such object, parameter or match
    NoBox = 77,  // the sandbox's device box can not be entered here
};

// The message is one line that names the culprit.
class Failure : public std::runtime_error {
  public:
    // `code` is the configuration layer's, 0 where it was not asked; `object` may be empty.
    Failure(Exit exit, const std::string &message, std::string object = {}, int code = 0)
        : std::runtime_error(message), exit_(exit), code_(code), object_(std::move(object)) {}

    [[nodiscard]] Exit exit() const { return exit_; }
    [[nodiscard]] int code() const { return code_; }
    [[nodiscard]] const std::string &object() const { return object_; }

  private:
    Exit exit_;
    int code_;
    std::string object_;
};

// A wrong command line.
class Usage : public Failure {
  public:
    explicit Usage(const std::string &message) : Failure(Exit::Usage, message) {}
};

constexpr int kExitSignal = 128;

// Ended by a signal that the command was waiting for beside its work.
class Interrupted : public Failure {
  public:
    explicit Interrupted(int signal, const std::string &message)
        : Failure(static_cast<Exit>(kExitSignal + signal), message) {}
};

} // namespace cli
