// SPDX-License-Identifier: MIT
#include "exchange/csv_file.h"

#include "value/escape.h"

#include <algorithm>
#include <ostream>

namespace sandbox {
namespace {

// An empty field says nothing; one in quotes says "".
using Field = std::optional<std::string>;
using Record = std::vector<Field>;

// Takes records off the text, counting lines.
class CsvReader {
  public:
    CsvReader(std::string_view text, const std::string &file) : rest_(text), file_(file) {}

    bool next(Record &record) {
        while (rest_.starts_with('\n') || rest_.starts_with("\r\n")) {
            endLine();
        }
        line_ = nextLine_;
        record.clear();
        if (rest_.empty()) {
            return false;
        }
        do {
            record.push_back(rest_.starts_with('"') ? Field(quotedField()) : plainField());
        } while (takeComma());
        return true;
    }

    size_t line() const { return line_; }

    [[noreturn]] void refuse(const std::string &message) const { throw FileError(file_, line_, message); }

  private:
    Field plainField() {
        const size_t end = std::min(rest_.find_first_of(",\n"), rest_.size());
        std::string field(rest_.substr(0, end));
        rest_.remove_prefix(end);
        if (field.ends_with('\r') && !rest_.starts_with(',')) {
            field.pop_back();
        }
        return field.empty() ? Field() : field;
    }

    std::string quotedField() {
        std::string field;
        rest_.remove_prefix(1);
        for (;;) {
            const size_t quote = rest_.find('"');
            if (quote == std::string_view::npos) {
                refuse("a quoted field does not end");
            }
            field += rest_.substr(0, quote);
            rest_.remove_prefix(quote + 1);
            if (!rest_.starts_with('"')) {
                nextLine_ += static_cast<size_t>(std::count(field.begin(), field.end(), '\n'));
                return field;
            }
            field += '"';
            rest_.remove_prefix(1);
        }
    }

    // Whether another field follows; otherwise the line is ended.
    bool takeComma() {
        if (rest_.starts_with(',')) {
            rest_.remove_prefix(1);
            return true;
        }
        if (!rest_.empty() && !rest_.starts_with('\n') && !rest_.starts_with("\r\n")) {
            refuse("expected a comma behind a quoted field");
        }
        endLine();
        return false;
    }

    void endLine() {
        rest_.remove_prefix(rest_.starts_with('\r') ? 1 : 0);
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        ++nextLine_;
    }

    std::string_view rest_;
    const std::string &file_;
    size_t line_ = 1;
    size_t nextLine_ = 1;
};

// A column: how its field goes into an entry and comes out of it. The path comes first.
struct Column {
    std::string_view name;
    void (*read)(Entry &entry, const std::string &field);
    Field (*write)(const Entry &entry);
};

void readAccess(Entry &entry, const std::string &field) {
    if (field != "ro" && field != "rw") {
        throw std::invalid_argument("access " + quotedShort(field) + " is neither ro nor rw");
    }
    entry.writable = field == "rw";
}

Field accessOf(const Entry &entry) {
    return entry.writable ? Field(*entry.writable ? "rw" : "ro") : Field();
}

constexpr Column kColumns[] = {
    {"path", nullptr, [](const Entry &entry) { return Field(entry.fullPath()); }},
    {"value", [](Entry &entry, const std::string &field) { entry.value = field; },
     [](const Entry &entry) { return entry.value; }},
    {"type", [](Entry &entry, const std::string &field) { entry.type = ValueType::parse(field); },
     [](const Entry &entry) { return entry.type ? Field(entry.type->text()) : Field(); }},
    {"access", readAccess, accessOf},
    {"default", [](Entry &entry, const std::string &field) { entry.fallback = field; },
     [](const Entry &entry) { return entry.fallback; }},
    {"running", [](Entry &entry, const std::string &field) { entry.running = field; },
     [](const Entry &entry) { return entry.running; }},
};

std::vector<const Column *> readHeader(const Record &names, const CsvReader &reader) {
    std::vector<const Column *> columns;
    for (const Field &field : names) {
        const std::string name = field.value_or("");
        const auto *column = std::find_if(std::begin(kColumns), std::end(kColumns),
                                          [&name](const Column &row) { return row.name == name; });
        if (column == std::end(kColumns) || std::find(columns.begin(), columns.end(), column) != columns.end()) {
            reader.refuse(quotedShort(name) + " is no column: path, value, type, access, default, running");
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
Entry entryOfRecord(const Record &record, const std::vector<const Column *> &columns) {
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

std::string fieldText(const Field &field) {
    if (!field) {
        return "";
    }
    if (!field->empty() && field->find_first_of(",\"\r\n") == std::string::npos) {
        return *field;
    }
    std::string out = "\"";
    for (const char c : *field) {
        out += c == '"' ? "\"\"" : std::string(1, c);
    }
    return out + '"';
}

} // namespace

Entries readCsv(std::string_view text, const std::string &file) {
    CsvReader reader(text, file);
    Record record;
    if (!reader.next(record)) {
        reader.refuse("the file is empty: it needs a header");
    }
    const std::vector<const Column *> columns = readHeader(record, reader);
    Entries entries;
    while (reader.next(record)) {
        if (record.size() != columns.size()) {
            reader.refuse(std::to_string(record.size()) + " fields where the header has " +
                          std::to_string(columns.size()));
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
        separator = "";
        for (const Column &column : kColumns) {
            out << separator << fieldText(column.write(entry));
            separator = ",";
        }
        out << '\n';
    }
}

} // namespace sandbox
