// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace box {

// The exit code that test drivers take for "skipped".
constexpr int kExitNoBox = 77;

// Why there can be no box on this machine, and what helps: what() is one line.
class Obstacle : public std::runtime_error {
  public:
    explicit Obstacle(const std::string &reason) : std::runtime_error("no device box: " + reason) {}
};

// For a bubblewrap that gave up with `complaint`: what in this kernel's settings stands against it, and the remedy.
Obstacle bwrapObstacle(const std::string &complaint);

} // namespace box
