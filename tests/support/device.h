// SPDX-License-Identifier: MIT
// The device as a test sees it: its console, its log, its files and its shell, each answered by the test.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace test {

// Puts a file where the library will look for `path` (below /opt, /proc/net or /tmp/wlan_wave): those paths are
// redirected into a directory of the test's own.
void putFile(const std::string &path, const std::string &content);
void removeFile(const std::string &path);
// Where a redirected path really lies.
std::string realPath(const std::string &path);

// What system() and popen() do. Every command is recorded first; without a handler system() answers 0 and popen()
// prints nothing. A popen handler answers the output; a system handler the status.
struct Shell {
    std::vector<std::string> commands;
    std::function<int(const std::string &)> onSystem;
    std::function<std::string(const std::string &)> onPopen;
    bool failPopen = false;
    bool real = false; // really run them
};
Shell &shell();
void resetShell();

// fopen() fails for the n-th next file (1: the next).
void failOpen(int n);

} // namespace test
