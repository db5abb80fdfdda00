// SPDX-License-Identifier: MIT
// The paths of objects: put together from parts, and those of interfaces, which are equal with and without a final dot.
#pragma once

#include "caltofal.h"
#include "frame/bounded_text.h"

namespace network {

// A path built from parts, cut to the width of a node's name.
using Path = frame::BoundedText<sizeof(ObjectNode::name)>;

// A path of at most 255 characters, ending in a dot.
class InterfacePath {
  public:
    explicit InterfacePath(const char *path);

    // Whether a reference, given its final dot where it lacks one, is this path.
    [[nodiscard]] bool is(const char *reference) const;

  private:
    size_t length_;
    char path_[257];
};

} // namespace network
