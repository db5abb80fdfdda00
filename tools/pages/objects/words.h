// SPDX-License-Identifier: MIT
// Objects, parameters and values as they are typed.
#pragma once

#include "pages/layer/query.h"

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

// "OBJECT [PARAM...] [OBJECT [PARAM...]]...": a word that begins with "Device." begins an object. Throws Usage.
std::vector<Object> objectsToRead(const std::vector<std::string> &words);

// "OBJECT [NAME=VALUE...]..."; also "OBJECT.NAME=VALUE" in one word. Throws Usage.
std::vector<Object> objectsToChange(const std::vector<std::string> &words);

// "NAME=VALUE". Throws Usage.
Parameter assignment(const std::string &word);

// Throws Usage when a path is empty or too long for a message.
const std::string &checkedPath(const std::string &path);

// A check of an argument or option: why it can not be, "" where it can.
std::string notEmpty(const std::string &value);

// What a noun takes. The targets live until its Run is gone; `type` stands behind the name in the help.
void addArgument(CLI::App &command, const char *name, std::string &target, const char *what);
// The optional ones, and options, are not empty.
void addOptionalArgument(CLI::App &command, const char *name, std::string &target, const char *what);
// Likewise; the result tells whether it was given, be it "".
std::function<bool()> addCountedArgument(CLI::App &command, const char *name, std::string &target, const char *what);
void addArguments(CLI::App &command, const char *name, std::vector<std::string> &target, const char *type,
                  const char *what);
void addFlag(CLI::App &command, const char *name, bool &target, const char *what);
void addOption(CLI::App &command, const char *name, std::string &target, const char *type, const char *what);
// May be given several times, one value each.
void addOption(CLI::App &command, const char *name, std::vector<std::string> &target, const char *type,
               const char *what);

} // namespace cli
