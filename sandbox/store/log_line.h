// SPDX-License-Identifier: MIT
//
// What the lines of the sandbox's logs share.
#pragma once

#include <string>

namespace sandbox {

// The local time, such as 2026-11-21T19:09:48+0000; with `milliseconds` 2026-11-21T19:09:48.125+0000.
std::string localTime(bool milliseconds = false);

// A layer's code and its name: "-206 out-of-range"; "other" for a code without a name.
std::string codeText(int code);

// Appends a line to a file, which is made where it does not exist. One write, so that lines of several processes do not
// mix. False, with errno set, when it cannot be done.
bool appendLine(const std::string &file, const std::string &line);

} // namespace sandbox
