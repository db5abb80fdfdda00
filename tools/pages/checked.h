// SPDX-License-Identifier: MIT
// What people type, checked before any of it reaches a message or a shell. Each check throws Usage.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace pages {

// A name that the library may put into a shell's command line as it is: only the check makes one.
class InterfaceName {
  public:
    explicit InterfaceName(std::string name);

    [[nodiscard]] const std::string &text() const { return name_; }
    [[nodiscard]] const char *c_str() const { return name_.c_str(); }

  private:
    std::string name_;
};

// An SSID has 32 bytes at most.
const std::string &checkedSsid(const std::string &ssid);

// A decimal number, such as a radio's or an SSID's; a refusal names `what`.
int checkedNumber(const std::string &text, const char *what, int least, int most);

// An instance number.
int checkedInstance(const std::string &text, const char *what);

// A MAC address, its pairs of digits joined by colons, dashes or nothing, with colons.
std::string checkedMac(const std::string &text);

// Whether two texts, each in one of these forms, tell the same MAC address, in any case. Throws nothing: what is no
// address is never the same.
bool isSameMac(const std::string &one, const std::string &other);

// An object path, not empty and not too long for a message.
const std::string &checkedPath(const std::string &path);

// A parameter's name, not empty and not too long for a message.
const std::string &checkedName(const std::string &name);

// Names to which values are given: each stands there once.
void refuseTwice(const std::vector<std::string> &names);

// "NAME=VALUE"; `before` is what stands before it. The value may be a secret that nobody knows for one: no message
// shows it.
Parameter assignment(const std::string &word, const std::string &before);

} // namespace pages
