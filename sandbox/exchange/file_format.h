// SPDX-License-Identifier: MIT
//
// The formats in which gateways are read and written.
#pragma once

#include "exchange/import_report.h"
#include "value/entry.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace sandbox {

enum class FileFormat { Gateway, Csv, Json };

// The names that --format takes.
const std::vector<std::string> &formatNames();
// Throws std::invalid_argument.
FileFormat formatOf(const std::string &name);

// What a file says. One that was written by this project is taken strictly, a dump of another program as it is: then
// there is a report, which the import goes on with.
struct FileContent {
    Entries entries;
    std::optional<ImportReport> report;
};

// Reads a file, or standard input for "-", by what it contains, or in the format asked for. Of a file that holds
// several devices `device` alone is taken; without it such a file is refused with their names. Throws FileError.
FileContent readContent(const std::string &file, std::optional<FileFormat> format = std::nullopt,
                        const std::string &device = {});

// The same of a file's bytes. `file` is the name used in messages.
FileContent contentOf(std::string bytes, const std::string &file, std::optional<FileFormat> format = std::nullopt,
                      const std::string &device = {});

void writeEntries(FileFormat format, const Entries &entries, std::ostream &out);

} // namespace sandbox
