// SPDX-License-Identifier: MIT
#include "exchange/file_format.h"

#include "exchange/csv_file.h"
#include "exchange/dump/capture.h"
#include "exchange/dump/csv.h"
#include "exchange/dump/entries.h"
#include "exchange/dump/json.h"
#include "exchange/dump/text.h"
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
#include <sstream>

namespace sandbox {
namespace {

constexpr std::string_view kBlanksAndLineEnds = " \t\r\n";

// Without anything in it that only these files have, a comment tells it from the dump of another program.
void writeGatewayFile(const Entries &entries, std::ostream &out) {
    if (std::all_of(entries.begin(), entries.end(),
                    [](const Entry &entry) { return textFormOf(gatewayLine(entry)) == TextForm::Dump; })) {
        out << "# A gateway file\n";
    }
    for (const Entry &entry : entries) {
        out << gatewayLine(entry) << '\n';
    }
}

// A file that is being read.
struct Source {
    std::string_view text;
    const std::string &file;
    const std::string &device; // to take of several; "" for none
};

using Read = FileContent (*)(const Source &source);

struct FormatRow {
    std::string_view name;
    std::string_view suffix;
    FileFormat format;
    Read read;
    void (*write)(const Entries &entries, std::ostream &out);
};

// Entries of a dump; one without any is not a gateway's.
FileContent takenIn(Dump dump, const std::string &file) {
    FileContent content;
    content.entries = entriesOf(dump);
    if (content.entries.empty()) {
        const std::string reasons = dump.report.reasons();
        throw FileError(file, reasons.empty() ? "no objects or values of a data model found in it"
                                              : "nothing in it can be taken in: " + reasons);
    }
    content.report = std::move(dump.report);
    return content;
}

FileContent readTextLines(const Source &source) {
    return takenIn(readTextDump(source.text), source.file);
}

FileContent readAnyGatewayFile(const Source &source) {
    Entries entries = readGatewayFile(source.text, source.file);
    if (!isCapture(source.text)) {
        return {std::move(entries), std::nullopt};
    }
    refuseDuplicates(entries, source.file);
    FileContent content = takenIn(captureDump(entries), source.file);
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(content.entries),
                 [](const Entry &entry) { return entry.kind == Entry::Kind::Recording; });
    return content;
}

FileContent readCommentedLines(const Source &source) {
    try {
        FileContent content = readAnyGatewayFile(source);
        refuseDuplicates(content.entries, source.file); // the import does too, but does not know of the comments
        return content;
    } catch (const FileError &error) {
        throw FileError(error,
                        "; comments make a gateway file of these lines: without them they are taken in as a dump");
    }
}

FileContent readAnyCsv(const Source &source) {
    return isCsvDump(source.text) ? takenIn(readCsvDump(source.text, source.file), source.file)
                                  : FileContent{readCsv(source.text, source.file), std::nullopt};
}

FileContent readAnyJson(const Source &source) {
    const std::vector<JsonNode> values = parseJson(source.text, source.file);
    return isOwnJson(values) && source.device.empty()
               ? FileContent{readJson(values, source.file), std::nullopt}
               : takenIn(readJsonDump(values, source.file, source.device), source.file);
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

// By the first character that is not a blank, by a CSV's header, by the file's name, by its lines.
Read recognised(std::string_view text, const std::string &file) {
    const size_t first = text.find_first_not_of(kBlanksAndLineEnds);
    if (text[first] == '{' || text[first] == '[') {
        return readAnyJson;
    }
    if (isOwnCsv(text) || isCsvDump(text)) {
        return readAnyCsv;
    }
    if (text[first] == '<' || text.find('\0') != std::string_view::npos) {
        throw FileError(file, "is neither a gateway file nor CSV nor JSON, but XML, HTML or no text at all");
    }
    for (const FormatRow &row : kFormats) {
        if (file.ends_with(row.suffix)) {
            return row.read;
        }
    }
    switch (textFormOf(text)) {
    case TextForm::Dump:
        return readTextLines;
    case TextForm::Either:
        return readCommentedLines;
    case TextForm::Other:
        break;
    }
    return readAnyGatewayFile;
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
    std::ostringstream text;
    if (in && in.peek() != std::istream::traits_type::eof()) {
        text << in.rdbuf();
    }
    if (in.bad() || !text || (in.fail() && !in.eof())) {
        throw FileError(file, std::strerror(errno));
    }
    return std::move(text).str();
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

FileContent readContent(const std::string &file, std::optional<FileFormat> format, const std::string &device) {
    return contentOf(readWhole(file), file, format, device);
}

FileContent contentOf(std::string bytes, const std::string &file, std::optional<FileFormat> format,
                      const std::string &device) {
    const std::string text = plainText(std::move(bytes));
    if (text.find_first_not_of(kBlanksAndLineEnds) == std::string::npos) {
        throw FileError(file, "is empty");
    }
    const Read read = format ? rowOf(*format).read : recognised(text, file);
    if (!device.empty() && read != readAnyJson) {
        throw FileError(file, "is no JSON: there is no device in it to choose");
    }
    return read({text, file, device});
}

void writeEntries(FileFormat format, const Entries &entries, std::ostream &out) {
    rowOf(format).write(entries, out);
}

} // namespace sandbox
