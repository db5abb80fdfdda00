// SPDX-License-Identifier: MIT
// Why a page could not be shown or a change not be made.
#pragma once

#include "pages/value.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace pages {

// The kinds of failure. Their numbers are published: errors carry them in JSON as "exit", for scripts to tell them
// apart, and a program that ends after one page ends with them.
enum class Category : int {
    Failed = 1,
    Usage = 2,   // what was asked for cannot be understood
    TimeOut = 3, // waiting was in vain
    NoLayer = 4, // no gateway, or its store cannot be used
    Refused = 5, // read-only, wrong type, out of range
    Absent = 10, // no such object, parameter or match
};

// The message is one line that names the culprit.
class Failure : public std::runtime_error {
  public:
    // `code` is the configuration layer's, 0 where it was not asked; `object` may be empty.
    Failure(Category category, const std::string &message, std::string object = {}, int code = 0)
        : std::runtime_error(message), category_(category), code_(code), object_(std::move(object)) {}

    [[nodiscard]] Category category() const { return category_; }
    [[nodiscard]] int code() const { return code_; }
    [[nodiscard]] const std::string &object() const { return object_; }

  private:
    Category category_;
    int code_;
    std::string object_;
};

// Where the explanation begins that a reason has behind "no such object", as "; ..." to its end; the reason's length
// where it has none.
size_t explanationIn(std::string_view reason);

// What was asked for cannot be understood.
class Usage : public Failure {
  public:
    explicit Usage(const std::string &message) : Failure(Category::Usage, message) {}
};

// A wait was ended by who waits (process/wait.h).
class Cancelled : public Failure {
  public:
    explicit Cancelled(const std::string &message) : Failure(Category::Failed, message) {}
};

// {"error": {"code", "exit", "message", "object"}}; code and object are null where there is none.
Value errorValue(const Failure &failure);

} // namespace pages
