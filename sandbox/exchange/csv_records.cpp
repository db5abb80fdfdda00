// SPDX-License-Identifier: MIT
#include "exchange/csv_records.h"

#include "value/entry.h"

#include <algorithm>

namespace sandbox {
namespace {

// Whether rows of a dump stand in a field, behind its first line.
bool holdsRows(std::string_view field) {
    for (size_t end = field.find('\n'); end != std::string_view::npos; end = field.find('\n', end + 1)) {
        std::string_view line = field.substr(end + 1);
        line.remove_prefix(line.starts_with('"') ? 1 : 0);
        if (line.starts_with("Device.") || line.starts_with("InternetGatewayDevice.")) {
            return true;
        }
    }
    return false;
}

} // namespace

bool CsvReader::next(CsvRecord &record) {
    while (rest_.starts_with('\n') || rest_.starts_with("\r\n")) {
        endLine();
    }
    line_ = nextLine_;
    openQuoteLine_ = 0;
    record.clear();
    if (rest_.empty()) {
        return false;
    }
    do {
        skipBlanksBeforeQuote();
        record.push_back(rest_.starts_with('"') ? CsvField(quotedField()) : plainField());
    } while (takeSeparator());
    return true;
}

void CsvReader::refuse(const std::string &message) const {
    throw FileError(file_, line_, message);
}

void CsvReader::skipBlanksBeforeQuote() {
    const size_t blanks = rest_.find_first_not_of(' ');
    if (dialect_.lenient && blanks != std::string_view::npos && rest_[blanks] == '"') {
        rest_.remove_prefix(blanks);
    }
}

CsvField CsvReader::plainField() {
    const char ends[] = {dialect_.separator, '\n', '\0'};
    const size_t end = std::min(rest_.find_first_of(ends), rest_.size());
    std::string field(rest_.substr(0, end));
    rest_.remove_prefix(end);
    if (field.ends_with('\r') && !rest_.starts_with(dialect_.separator)) {
        field.pop_back();
    }
    return field.empty() ? CsvField() : field;
}

std::string CsvReader::quotedField() {
    std::string field;
    rest_.remove_prefix(1);
    const std::string_view whole = rest_;
    bool torn = false; // a quote in another line than the first, where no field ends
    for (;;) {
        const size_t quote = std::min(rest_.find('"'), rest_.size());
        field += rest_.substr(0, quote);
        const bool open = quote == rest_.size();
        if (open && !dialect_.lenient) {
            refuse("a quoted field does not end");
        }
        rest_.remove_prefix(open ? quote : quote + 1);
        const bool doubled = rest_.starts_with('"');
        if (open || (!doubled && (!dialect_.lenient || atFieldEnd()))) {
            if (open || (torn && holdsRows(field))) {
                return openField(whole, std::move(field));
            }
            nextLine_ += static_cast<size_t>(std::count(field.begin(), field.end(), '\n'));
            return field;
        }
        torn = torn || (!doubled && field.find('\n') != std::string::npos);
        field += '"';
        rest_.remove_prefix(doubled ? 1 : 0);
    }
}

// A field whose quote does not end: `whole` is the text behind it, `field` what was taken for its content.
std::string CsvReader::openField(std::string_view whole, std::string field) {
    openQuoteLine_ = openQuoteLine_ == 0 ? nextLine_ : openQuoteLine_;
    if (holdsRows(field)) {
        rest_ = whole;
        return plainField().value_or("");
    }
    nextLine_ += static_cast<size_t>(std::count(field.begin(), field.end(), '\n'));
    return field;
}

bool CsvReader::atFieldEnd() const {
    return rest_.empty() || rest_.front() == dialect_.separator || rest_.starts_with('\n') || rest_.starts_with("\r\n");
}

// Whether another field follows; otherwise the line is ended.
bool CsvReader::takeSeparator() {
    if (rest_.starts_with(dialect_.separator)) {
        rest_.remove_prefix(1);
        return true;
    }
    if (!atFieldEnd()) {
        refuse("expected a comma behind a quoted field");
    }
    endLine();
    return false;
}

void CsvReader::endLine() {
    rest_.remove_prefix(rest_.starts_with('\r') ? 1 : 0);
    rest_.remove_prefix(rest_.empty() ? 0 : 1);
    ++nextLine_;
}

std::string csvText(const CsvField &field) {
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

} // namespace sandbox
