// SPDX-License-Identifier: MIT
// Secrets of this start of the server.
#pragma once

#include <string>
#include <string_view>

namespace web {

// 128 bits from the kernel's random numbers, as 32 hexadecimal digits. Throws std::system_error.
std::string randomToken();

// Takes the same time wherever the two differ.
bool isSameSecret(std::string_view given, std::string_view secret);

// Makes or replaces a file that the owner alone may read, with the secret as its one line. What is no regular file, a
// symbolic link included, stays as it is. Throws std::runtime_error.
void writeSecret(const std::string &file, std::string_view secret);

} // namespace web
