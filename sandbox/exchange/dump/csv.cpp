// SPDX-License-Identifier: MIT
#include "exchange/dump/csv.h"

#include "exchange/csv_file.h"
#include "exchange/csv_records.h"
#include "exchange/dump/words.h"
#include "value/escape.h"

#include <algorithm>

namespace sandbox {
namespace {

// The columns that count, by the plain words that head them.
enum DumpColumn : size_t { kPathColumn, kObjectColumn, kWritableColumn, kValueColumn, kTypeColumn, kDumpColumns };

struct Heading {
    std::string_view word;
    DumpColumn column;
};
constexpr Heading kHeadings[] = {
    {"parameter", kPathColumn},      {"parametername", kPathColumn},
    {"parameterpath", kPathColumn},  {"path", kPathColumn},
    {"name", kPathColumn},           {"fullpath", kPathColumn},
    {"fullname", kPathColumn},       {"object", kObjectColumn},
    {"writable", kWritableColumn},   {"access", kWritableColumn},
    {"permission", kWritableColumn}, {"permissions", kWritableColumn},
    {"value", kValueColumn},         {"parametervalue", kValueColumn},
    {"currentvalue", kValueColumn},  {"valuetype", kTypeColumn},
    {"type", kTypeColumn},           {"datatype", kTypeColumn},
    {"parametertype", kTypeColumn},
};

// Where each column stands.
struct Header {
    std::optional<size_t> at[kDumpColumns];
    size_t fields = 0;

    bool isComplete() const { return at[kPathColumn] && at[kValueColumn]; }
};

Header headerOf(const CsvRecord &names) {
    Header header;
    header.fields = names.size();
    for (size_t i = 0; i < names.size(); ++i) {
        const std::string word = plainWord(names[i].value_or(""));
        for (const Heading &row : kHeadings) {
            if (row.word == word && !header.at[row.column]) {
                header.at[row.column] = i;
            }
        }
    }
    return header;
}

// The separator that makes a header of the first line.
CsvDialect dialectOf(std::string_view text) {
    const std::string file;
    for (const char separator : {',', ';', '\t'}) {
        const CsvDialect dialect{separator, true};
        CsvRecord names;
        CsvReader reader(text.substr(0, text.find('\n')), file, dialect);
        if (reader.next(names) && headerOf(names).isComplete()) {
            return dialect;
        }
    }
    return {'\0', true};
}

class CsvDump {
  public:
    CsvDump(std::string_view text, const std::string &file) : reader_(text, file, dialectOf(text)) {}

    Dump run() {
        CsvRecord record;
        if (!reader_.next(record)) {
            reader_.refuse("the file is empty: it needs a header");
        }
        header_ = headerOf(record);
        if (!header_.isComplete()) {
            reader_.refuse("the header names no column for paths, or none for values");
        }
        while (reader_.next(record)) {
            take(record);
        }
        return std::move(dump_);
    }

  private:
    // Taken out of the record.
    std::string field(CsvRecord &record, DumpColumn column) const {
        const std::optional<size_t> at = header_.at[column];
        return at && *at < record.size() && record[*at] ? std::move(*record[*at]) : "";
    }

    void take(CsvRecord &record) {
        if (const size_t line = reader_.openQuoteLine(); line != 0) {
            dump_.report.count(Reason::OpenQuote, "line " + std::to_string(line));
        }
        DumpRow row;
        row.path = field(record, kPathColumn);
        row.type = field(record, kTypeColumn);
        row.writable = writableOfWord(field(record, kWritableColumn));
        row.object = writableOfWord(field(record, kObjectColumn)).value_or(false) || isObjectWord(row.type);
        row.line = reader_.line();
        const bool torn = record.size() > header_.fields || *header_.at[kValueColumn] >= record.size();
        if (row.path.empty() || (torn && !row.object)) {
            dump_.report.values += row.object ? 0 : 1;
            dump_.report.count(Reason::TornRow, exampleOf(row));
            return;
        }
        std::string value = field(record, kValueColumn);
        const bool never = value.empty() && row.type.empty() && header_.at[kTypeColumn]; // the ACS never asked for it
        if (!row.object && !never) {
            row.value = std::move(value);
        }
        dump_.rows.push_back(std::move(row));
    }

    CsvReader reader_;
    Header header_;
    Dump dump_;
};

} // namespace

bool isCsvDump(std::string_view text) {
    return dialectOf(text).separator != '\0' && !isOwnCsv(text);
}

Dump readCsvDump(std::string_view text, const std::string &file) {
    return CsvDump(text, file).run();
}

} // namespace sandbox
