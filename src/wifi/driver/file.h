// SPDX-License-Identifier: MIT
// A text file read line by line.
#pragma once

#include <cstddef>
#include <cstdio>

namespace wifi {

// What a line of the driver's and the survey's files fits into; longer ones are read in pieces.
inline constexpr size_t kLineSize = 128;

// An open file, closed at the end of its scope.
class File {
  public:
    explicit File(const char *path) : stream_(fopen(path, "r")) {}
    ~File() {
        if (stream_) {
            fclose(stream_);
        }
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    // Whether the file could be opened.
    [[nodiscard]] bool opened() const { return stream_ != nullptr; }

    // Reads a line, its newline included, or as much of it as fits; false at the end of the file.
    template <size_t Size>
    bool readLine(char (&line)[Size]) {
        return fgets(line, Size, stream_) != nullptr;
    }

    // Reads on behind the next newline.
    void skipLine() {
        for (int c = 0; c != EOF && c != '\n';) {
            c = fgetc(stream_);
        }
    }

    // Reads at most `size` bytes; fewer at the end of the file only.
    size_t read(char *buffer, size_t size) { return fread(buffer, 1, size, stream_); }

  private:
    FILE *stream_;
};

} // namespace wifi
