// SPDX-License-Identifier: MIT
//
// The formats in which gateways are read and written.
#pragma once

#include "value/entry.h"

#include <iosfwd>
#include <string>
#include <string_view>

namespace sandbox {

enum class FileFormat { Gateway, Csv, Json };

// The names that --format takes.
const std::vector<std::string> &formatNames();
// By its name; "" goes by the file name's ending.
FileFormat formatOf(const std::string &name, const std::string &file);

// Throws FileError. `file` is the name used in messages.
Entries readEntries(FileFormat format, std::string_view text, const std::string &file);
void writeEntries(FileFormat format, const Entries &entries, std::ostream &out);

// A file's whole content; "-" is standard input. Throws a Failure.
std::string readWhole(const std::string &file);

} // namespace sandbox
