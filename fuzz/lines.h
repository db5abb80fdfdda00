// SPDX-License-Identifier: MIT
// A text as the library reads it from a tool or a file: line by line.
#pragma once

#include "check.h"

namespace fuzz {

// Calls visit(line) for each text that fgets() cuts out with a buffer of 128 bytes: a line, its newline included, or a
// piece of a longer one. What stands after a byte 0 in it is lost, as it is for the library.
template <class Visit>
void eachLine(std::string_view content, Visit visit) {
    constexpr size_t kLongest = 127;
    while (!content.empty()) {
        const std::string_view piece = content.substr(0, std::min(content.find('\n'), kLongest - 1) + 1);
        Text line{std::string(piece)};
        visit(line.get());
        content.remove_prefix(piece.size());
    }
}

} // namespace fuzz
