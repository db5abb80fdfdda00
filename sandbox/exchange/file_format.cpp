// SPDX-License-Identifier: MIT
#include "exchange/file_format.h"

#include "exchange/csv_file.h"
#include "exchange/dump/capture.h"
#include "exchange/dump/csv.h"
#include "exchange/dump/entries.h"
#include "exchange/dump/json.h"
#include "exchange/gateway_file.h"
#include "exchange/json_file.h"
#include "exchange/text_encoding.h"

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
    FileContent (*read)(std::string_view text, const std::string &file);
    void (*write)(const Entries &entries, std::ostream &out);
};

// Entries of a dump; one without any is not a gateway's.
FileContent takenIn(Dump dump, const std::string &file) {
    FileContent content;
    content.entries = entriesOf(dump);
    if (content.entries.empty()) {
        throw FileError(file, "no objects or values of a data model found in it");
    }
    content.report = std::move(dump.report);
    return content;
}

FileContent readAnyGatewayFile(std::string_view text, const std::string &file) {
    Entries entries = readGatewayFile(text, file);
    if (!isCapture(text)) {
        return {std::move(entries), std::nullopt};
    }
    FileContent content = takenIn(captureDump(entries), file);
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(content.entries),
                 [](const Entry &entry) { return entry.kind == Entry::Kind::Recording; });
    return content;
}

FileContent readAnyCsv(std::string_view text, const std::string &file) {
    return isCsvDump(text) ? takenIn(readCsvDump(text, file), file) : FileContent{readCsv(text, file), std::nullopt};
}

FileContent readAnyJson(std::string_view text, const std::string &file) {
    const std::vector<JsonNode> values = parseJson(text, file);
    return isOwnJson(values) ? FileContent{readJson(values, file), std::nullopt} : takenIn(readJsonDump(values), file);
}

constexpr FormatRow kFormats[] = {
    {"tr181", ".tr181", FileFormat::Gateway, readAnyGatewayFile, writeGatewayFile},
    {"csv", ".csv", FileFormat::Csv, readAnyCsv, writeCsv},
    {"json", ".json", FileFormat::Json, readAnyJson, writeJson},
};

const FormatRow &rowOf(FileFormat format) {
    return *std::find_if(std::begin(kFormats), std::end(kFormats),
                         [format](const FormatRow &row) { return row.format == format; });
}

// By the first character that is not a blank, by a CSV's header, else by the file's name.
FileFormat recognised(std::string_view text, const std::string &file) {
    const size_t first = text.find_first_not_of(" \t\r\n");
    if (first != std::string_view::npos && (text[first] == '{' || text[first] == '[')) {
        return FileFormat::Json;
    }
    if (isOwnCsv(text) || isCsvDump(text)) {
        return FileFormat::Csv;
    }
    if (first != std::string_view::npos && (text[first] == '<' || text.find('\0') != std::string_view::npos)) {
        throw FileError(file, "is neither a gateway file nor CSV nor JSON, but XML, HTML or no text at all");
    }
    for (const FormatRow &row : kFormats) {
        if (file.ends_with(row.suffix)) {
            return row.format;
        }
    }
    return FileFormat::Gateway;
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

FileFormat formatOf(const std::string &name) {
    for (const FormatRow &row : kFormats) {
        if (name == row.name) {
            return row.format;
        }
    }
    throw std::invalid_argument(name + " is not a format");
}

FileContent readContent(const std::string &file, std::optional<FileFormat> format) {
    return contentOf(readWhole(file), file, format);
}

FileContent contentOf(std::string bytes, const std::string &file, std::optional<FileFormat> format) {
    const std::string text = plainText(std::move(bytes));
    return rowOf(format ? *format : recognised(text, file)).read(text, file);
}

void writeEntries(FileFormat format, const Entries &entries, std::ostream &out) {
    rowOf(format).write(entries, out);
}

} // namespace sandbox
