// SPDX-License-Identifier: MIT
//
// The file system of a box, as arguments of bubblewrap.
#pragma once

#include "device/box/places.h"

#include <string>
#include <vector>

namespace box {

// Host directories that a box shows at their own paths.
class Shown {
  public:
    // Shows a directory; one that is shown already, or whose path is the box's own, stays as it is.
    void add(const std::string &directory, bool writable);

    // Whether the box has what the host has there.
    [[nodiscard]] bool has(const std::string &path) const;

    void appendTo(std::vector<std::string> &arguments) const;

  private:
    struct Entry {
        std::string directory;
        bool writable;
    };
    std::vector<Entry> entries_;
};

// `state` is the gateway's state directory.
std::vector<std::string> mountArguments(const Places &places, const std::string &state, const Shown &shown);

} // namespace box
