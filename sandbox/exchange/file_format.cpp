// SPDX-License-Identifier: MIT
#include "exchange/file_format.h"

#include "exchange/csv_file.h"
#include "exchange/gateway_file.h"
#include "exchange/json_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace sandbox {
namespace {

void writeGatewayFile(const Entries &entries, std::ostream &out) {
    for (const Entry &entry : entries) {
        out << gatewayLine(entry) << '\n';
    }
}

struct FormatRow {
    std::string_view name;
    std::string_view suffix;
    FileFormat format;
    Entries (*read)(std::string_view text, const std::string &file);
    void (*write)(const Entries &entries, std::ostream &out);
};
constexpr FormatRow kFormats[] = {
    {"tr181", ".tr181", FileFormat::Gateway, readGatewayFile, writeGatewayFile},
    {"csv", ".csv", FileFormat::Csv, readCsv, writeCsv},
    {"json", ".json", FileFormat::Json, readJson, writeJson},
};

const FormatRow &rowOf(FileFormat format) {
    return *std::find_if(std::begin(kFormats), std::end(kFormats),
                         [format](const FormatRow &row) { return row.format == format; });
}

} // namespace

const std::vector<std::string> &formatNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> result;
        for (const FormatRow &row : kFormats) {
            result.emplace_back(row.name);
        }
        return result;
    }();
    return names;
}

FileFormat formatOf(const std::string &name, const std::string &file) {
    for (const FormatRow &row : kFormats) {
        if (name.empty() ? file.ends_with(row.suffix) : name == row.name) {
            return row.format;
        }
    }
    return FileFormat::Gateway;
}

Entries readEntries(FileFormat format, std::string_view text, const std::string &file) {
    return rowOf(format).read(text, file);
}

void writeEntries(FileFormat format, const Entries &entries, std::ostream &out) {
    rowOf(format).write(entries, out);
}

std::string readWhole(const std::string &file) {
    std::ifstream stream;
    if (std::filesystem::is_directory(file)) {
        throw FileError(file, "is a directory");
    }
    if (file != "-") {
        stream.open(file, std::ios::binary);
    }
    std::istream &in = file == "-" ? std::cin : stream;
    std::string text(std::istreambuf_iterator<char>(in), {});
    if (!in || in.bad()) {
        throw FileError(file, std::strerror(errno));
    }
    return text;
}

} // namespace sandbox
