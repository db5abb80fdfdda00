// SPDX-License-Identifier: MIT
// Running a shell command and reading what it prints.
#pragma once

#include <cstddef>
#include <cstdio>

namespace frame {

// A command started with popen() for reading; closing it waits for the command to end.
class Pipe {
  public:
    explicit Pipe(const char *command) : stream_(popen(command, "r")) {}
    ~Pipe() {
        if (stream_) {
            pclose(stream_);
        }
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    // Whether the command could be started.
    [[nodiscard]] bool started() const { return stream_ != nullptr; }

    // Reads a line as fgets() does; false at the end of the output.
    bool readLine(char *line, size_t size) { return fgets(line, static_cast<int>(size), stream_) != nullptr; }

    // Reads at most `size` bytes at once; 0 at the end of the output.
    size_t read(char *buffer, size_t size) { return fread(buffer, 1, size, stream_); }

  private:
    FILE *stream_;
};

// Runs a command with system(); false when the shell could not be started.
bool runShell(const char *command);

// Drops one trailing white-space character.
void dropTrailingSpace(char *line);

} // namespace frame
