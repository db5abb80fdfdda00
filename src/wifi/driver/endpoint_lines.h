// SPDX-License-Identifier: MIT
// What the driver tells of an endpoint's upstream link.
#pragma once

#include <cstdint>

namespace wifi {

// Whether the line that lists a peer holds a valid MAC address. Its newline is dropped.
bool isPeer(char *line);

// Collects the figures of a channel, one a line.
class ChannelFigures {
  public:
    // `values` has room for a figure of every line, or is nullptr: then none is stored.
    explicit ChannelFigures(int32_t *values) : values_(values) {}

    // Takes a line; false when its figure is 0 or missing: then the lines after it do not count.
    bool addLine(const char *line);

    // Whether a figure was stored.
    [[nodiscard]] bool any() const { return stored_ > 0; }

  private:
    int32_t *values_;
    int stored_ = 0;
};

} // namespace wifi
