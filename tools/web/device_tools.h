// SPDX-License-Identifier: MIT
// Where the device's own tools and files are.
#pragma once

namespace web {

// Throws Failure outside of a device and of the sandbox's device box.
void needDeviceTools();

} // namespace web
