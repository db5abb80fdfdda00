// SPDX-License-Identifier: MIT
// A text file read line by line.
#pragma once

#include <cstddef>
#include <cstdio>

namespace wifi {

// What a line of the driver's and the survey's files fits into; longer ones are read in pieces.
inline constexpr size_t kLineSize = 128;

// A file, closed at the end of its scope.
class File {
  public:
    File() = default;
    ~File() {
        if (stream_) {
            fclose(stream_);
        }
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    // Opens a file, once, for reading; false when it cannot be opened.
    bool open(const char *path) {
        stream_ = fopen(path, "r");
        return stream_ != nullptr;
    }

    // Reads a line, its newline included, or as much of it as fits; false at the end of the file.
    bool readLine(char (&line)[kLineSize]) { return fgets(line, kLineSize, stream_) != nullptr; }

    // As readLine(), and skips the rest of a line that does not fit.
    bool readStartOfLine(char (&line)[kLineSize]);

    // Reads at most `size` bytes; fewer at the end of the file only.
    size_t read(char *buffer, size_t size) { return fread(buffer, 1, size, stream_); }

  private:
    FILE *stream_ = nullptr;
};

} // namespace wifi
