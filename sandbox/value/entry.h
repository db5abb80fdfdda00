// SPDX-License-Identifier: MIT
//
// What one line of a gateway file says, whatever the file's format.
#pragma once

#include "value/value_type.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sandbox {

struct Entry {
    enum class Kind {
        Parameter,         // path and name
        Object,            // path
        TemplateParameter, // pattern and name
        TemplateObject,    // pattern; `writable` says whether a set may add and delete instances
        Recording,         // `path` is a file's, or a command; `value` its content or answer
    };

    Kind kind;
    std::string path; // object path or pattern, with a final dot
    std::string name; // the parameter's

    // Empty: not said.
    std::optional<ValueType> type;
    std::optional<bool> writable;
    std::optional<std::string> fallback; // the default value
    std::optional<std::string> value;    // stored, and running where that is not said
    std::optional<std::string> running;
    std::optional<int> presence;  // of an object: kRunning or kStored alone
    std::optional<int> exitCode;  // of a recorded command; empty: a file
    std::optional<uint32_t> last; // of a table: highest instance number ever given

    // The value was hidden: the parameter keeps its own, or is made with an empty one.
    bool hidden = false;

    // Type, access and default are a guess: those that the gateway has go before.
    bool guessed = false;

    size_t line = 0; // in its file, from 1

    std::string fullPath() const { return path + name; }
};

using Entries = std::vector<Entry>;

// A file that cannot be taken in: what() is "FILE:LINE: message", or "FILE: message" where the file as a whole fails.
class FileError : public std::runtime_error {
  public:
    FileError(const std::string &file, size_t line, const std::string &message)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + message) {}
    FileError(const std::string &file, const std::string &message) : std::runtime_error(file + ": " + message) {}
    FileError(const FileError &error, const std::string &advice) : std::runtime_error(error.what() + advice) {}
};

// Throws FileError for the first entry whose path stands in the file already.
void refuseDuplicates(const Entries &entries, const std::string &file);

// Sorts a parameter's or an object's path (with a final dot) into kind, path and name. Throws std::invalid_argument
// saying what is wrong with it.
Entry entryOf(std::string_view path);

} // namespace sandbox
