// SPDX-License-Identifier: MIT
//
// Lists of networks: docs/device-box.md describes them for those who write one.
#pragma once

#include "device/model/neighbours.h"

#include <istream>
#include <string>
#include <vector>

namespace device {

// Each line is a network: its band, then the ten columns of a survey's result, separated by tabs. Empty lines and those
// that begin with '#' are passed over. Throws std::runtime_error that begins with "NAME:LINE: " for any other line.
std::vector<Neighbour> parseNeighbours(std::istream &list, const std::string &name);

} // namespace device
