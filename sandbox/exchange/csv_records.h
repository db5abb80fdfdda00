// SPDX-License-Identifier: MIT
//
// CSV (RFC 4180) as records of fields.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

// An empty field says nothing; one in quotes says "".
using CsvField = std::optional<std::string>;
using CsvRecord = std::vector<CsvField>;

// How records are written: the strict form, or what other programs make of it: blanks before quotes, quotes that are
// not doubled, a last field that is cut.
struct CsvDialect {
    char separator = ',';
    bool lenient = false;
};

// Takes records off the text, counting lines.
class CsvReader {
  public:
    CsvReader(std::string_view text, const std::string &file, CsvDialect dialect = {})
        : rest_(text), file_(file), dialect_(dialect) {}

    // The next record; false behind the last one. Throws FileError where the form is strict and broken.
    bool next(CsvRecord &record);

    // Of the record, from 1.
    size_t line() const { return line_; }

    // Where in it the first quote stands that does not end, from 1; 0 for none. Of the lenient form alone: where rows
    // would be swallowed, the field is what stands up to its separator.
    size_t openQuoteLine() const { return openQuoteLine_; }

    [[noreturn]] void refuse(const std::string &message) const;

  private:
    void skipBlanksBeforeQuote();
    CsvField plainField();
    std::string quotedField();
    std::string openField(std::string_view whole, std::string field);
    bool takeSeparator();
    void endLine();
    bool atFieldEnd() const;

    std::string_view rest_;
    const std::string &file_;
    CsvDialect dialect_;
    size_t line_ = 1;
    size_t nextLine_ = 1;
    size_t openQuoteLine_ = 0;
};

// The field as it stands in a record.
std::string csvText(const CsvField &field);

} // namespace sandbox
