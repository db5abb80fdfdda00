// SPDX-License-Identifier: MIT
//
// How the model writes what the device's tools want: numbers, bands.
#pragma once

#include <string>

namespace device {

// The leading number of a text; 0 when there is none.
int leadingNumber(const std::string &text);

// "2.4GHz", "5GHz" or "6GHz": as the gateway says, or by the channel where it does not.
std::string bandOf(const std::string &said, int channel);

} // namespace device
