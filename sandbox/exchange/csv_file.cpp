// SPDX-License-Identifier: MIT
#include "exchange/csv_file.h"

#include "exchange/csv_records.h"
#include "exchange/dump/words.h"
#include "exchange/gateway_file.h"
#include "value/escape.h"

#include <algorithm>
#include <ostream>

namespace sandbox {
namespace {

// Records that are looked at to tell whose file it is.
constexpr size_t kLooked = 50;
// Lines that somebody would write by hand.
constexpr ptrdiff_t kByHand = 100;

// A column: how its field goes into an entry and comes out of it. The path comes first.
struct Column {
    std::string_view name;
    void (*read)(Entry &entry, const std::string &field);
    CsvField (*write)(const Entry &entry);
};

void readAccess(Entry &entry, const std::string &field) {
    if (field != "ro" && field != "rw") {
        throw std::invalid_argument("the access is neither ro nor rw");
    }
    entry.writable = field == "rw";
}

CsvField accessOf(const Entry &entry) {
    return entry.writable ? CsvField(*entry.writable ? "rw" : "ro") : CsvField();
}

// The word itself is not told: it is a value where that has a comma in it and no quotes around it.
void readType(Entry &entry, const std::string &field) {
    try {
        entry.type = ValueType::parse(field);
    } catch (const std::invalid_argument &) {
        throw std::invalid_argument("an unknown type");
    }
}

// Annotations that only objects have.
void readObject(Entry &entry, const std::string &field) {
    const Entry object = gatewayEntry(entry.path + " [" + field + "]");
    entry.last = object.last;
    entry.presence = object.presence;
}

CsvField objectOf(const Entry &entry) {
    Entry object;
    object.last = entry.last;
    object.presence = entry.presence;
    const std::string text = gatewayAnnotations(object);
    return text.empty() ? CsvField() : text;
}

constexpr Column kColumns[] = {
    {"path", nullptr, [](const Entry &entry) { return CsvField(entry.fullPath()); }},
    {"value", [](Entry &entry, const std::string &field) { entry.value = field; },
     [](const Entry &entry) { return entry.value; }},
    {"type", readType, [](const Entry &entry) { return entry.type ? CsvField(entry.type->text()) : CsvField(); }},
    {"access", readAccess, accessOf},
    {"default", [](Entry &entry, const std::string &field) { entry.fallback = field; },
     [](const Entry &entry) { return entry.fallback; }},
    {"running", [](Entry &entry, const std::string &field) { entry.running = field; },
     [](const Entry &entry) { return entry.running; }},
    {"object", readObject, objectOf},
};

const Column *findColumn(const CsvField &heading) {
    const std::string name = heading.value_or("");
    const auto *column =
        std::find_if(std::begin(kColumns), std::end(kColumns), [&name](const Column &row) { return row.name == name; });
    return column == std::end(kColumns) ? nullptr : column;
}

// What is no name of a column is shown nowhere: in a file without a header it is a value.
std::vector<const Column *> readHeader(const CsvRecord &names, const CsvReader &reader) {
    constexpr const char *kNames = "path, value, type, access, default, running, object";
    if (std::none_of(names.begin(), names.end(), findColumn)) {
        reader.refuse(std::string("the header line is missing: the first line has to name the columns, of ") + kNames);
    }
    std::vector<const Column *> columns;
    for (const CsvField &field : names) {
        const Column *column = findColumn(field);
        const std::string place = "column " + std::to_string(columns.size() + 1) + " of the header is ";
        if (!column) {
            reader.refuse(place + "none of " + kNames);
        }
        if (std::find(columns.begin(), columns.end(), column) != columns.end()) {
            reader.refuse(place + "a second " + std::string(column->name));
        }
        columns.push_back(column);
    }
    for (const Column *needed : {&kColumns[0], &kColumns[1]}) {
        if (std::find(columns.begin(), columns.end(), needed) == columns.end()) {
            reader.refuse("the header lacks the column " + std::string(needed->name));
        }
    }
    return columns;
}

// A parameter's value may be empty without being in quotes.
Entry entryOfRecord(const CsvRecord &record, const std::vector<const Column *> &columns) {
    const auto path = static_cast<size_t>(std::find(columns.begin(), columns.end(), kColumns) - columns.begin());
    Entry entry = entryOf(record[path].value_or(""));
    for (size_t i = 0; i < columns.size(); ++i) {
        if (columns[i]->read && record[i]) {
            columns[i]->read(entry, *record[i]);
        }
    }
    const bool parameter = entry.kind == Entry::Kind::Parameter;
    if (parameter && !entry.value) {
        entry.value = "";
    }
    if (!parameter && (entry.value || entry.running)) {
        throw std::invalid_argument("only a parameter of an existing object has a value");
    }
    return entry;
}

} // namespace

bool isOwnCsv(std::string_view text) {
    const std::string file;
    CsvReader reader(text, file, {',', true});
    CsvRecord names;
    if (!reader.next(names) || !std::all_of(names.begin(), names.end(), findColumn)) {
        return false;
    }
    // What an export writes has all columns, what a person writes is short.
    const bool whole = std::find(names.begin(), names.end(), "default") != names.end();
    if (!whole && std::count(text.begin(), text.end(), '\n') > kByHand) {
        return false;
    }
    // Other programs may have the same headings, but words of their own below.
    CsvRecord record;
    for (size_t i = 0; i < kLooked && reader.next(record); ++i) {
        for (size_t column = 0; column < std::min(names.size(), record.size()); ++column) {
            const std::string word = record[column].value_or("");
            if ((names[column] == "type" && plainWord(word).starts_with("xs")) ||
                (names[column] == "access" && word != "ro" && word != "rw" && writableOfWord(word))) {
                return false;
            }
        }
    }
    return true;
}

Entries readCsv(std::string_view text, const std::string &file) {
    CsvReader reader(text, file);
    CsvRecord record;
    if (!reader.next(record)) {
        reader.refuse("the file is empty: it needs a header");
    }
    const std::vector<const Column *> columns = readHeader(record, reader);
    Entries entries;
    while (reader.next(record)) {
        if (record.size() != columns.size()) {
            reader.refuse(std::to_string(record.size()) + (record.size() == 1 ? " field" : " fields") +
                          " where the header has " + std::to_string(columns.size()));
        }
        try {
            entries.push_back(entryOfRecord(record, columns));
            entries.back().line = reader.line();
        } catch (const std::invalid_argument &error) {
            reader.refuse(error.what());
        }
    }
    return entries;
}

void writeCsv(const Entries &entries, std::ostream &out) {
    const char *separator = "";
    for (const Column &column : kColumns) {
        out << separator << column.name;
        separator = ",";
    }
    out << '\n';
    for (const Entry &entry : entries) {
        if (entry.kind == Entry::Kind::Recording) {
            continue; // for gateway files alone
        }
        separator = "";
        for (const Column &column : kColumns) {
            out << separator << csvText(column.write(entry));
            separator = ",";
        }
        out << '\n';
    }
}

} // namespace sandbox
