// SPDX-License-Identifier: MIT
// What is written while a command is at work: lines of the trace, and how far it is.
#pragma once

#include <string>
#include <string_view>

namespace cli {

// Of the terminal that a stream is; 0 where it is none.
struct Screen {
    size_t columns = 0, rows = 0;
};
Screen screen(int stream = 1); // standard output

// Writes all of it; what cannot be written is lost.
void writeAll(int descriptor, std::string_view text);

// A line on standard error that says what is being waited for; gone when the object is. Nothing where standard error
// is no terminal.
class Progress {
  public:
    Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    ~Progress();

    // Replaces the line.
    void show(const std::string &line);

  private:
    int terminal_ = -1; // of its own: standard error may lead elsewhere for a while
    std::string shown_;
};

} // namespace cli
