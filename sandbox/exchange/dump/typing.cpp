// SPDX-License-Identifier: MIT
#include "exchange/dump/typing.h"

#include "exchange/dump/known.h"
#include "exchange/dump/words.h"
#include "value/path.h"
#include "value/secret.h"
#include "value/value_syntax.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace sandbox {
namespace {

// Endings of the names of parameters that no device lets be set.
constexpr std::string_view kReadOnlyEndings[] = {
    "NumberOfEntries", "Status",     "Sent",  "Received",     "LastChange",
    "UpTime",          "MACAddress", "BSSID", "SerialNumber", "Version",
};
// Likewise, but lists and filters that a host writes.
constexpr std::string_view kWritableEndings[] = {"AllowedMACAddress", "DestMACAddress", "SourceMACAddress"};

bool fits(const ValueType &type, std::string value) {
    return value.empty() || type.check(value) == ValueType::Verdict::Valid;
}

// One misfit in ten is what devices do; more, and the numbers mean something else.
bool areUsualNumbers(const std::vector<DumpRow> &rows) {
    size_t values = 0;
    size_t misfits = 0;
    for (const DumpRow &row : rows) {
        if (row.value && !row.type.empty() && isInteger(row.type)) {
            const std::optional<ValueType> type = typeOfWord(row.type, true);
            ++values;
            misfits += type && fits(*type, *row.value) ? 0 : 1;
        }
    }
    return misfits * 10 <= values;
}

const ValueType &integerType(const std::string &value) {
    static const std::array<ValueType, 5> types = {ValueType::parse("unsignedInt"), ValueType::parse("int"),
                                                   ValueType::parse("unsignedLong"), ValueType::parse("long"),
                                                   ValueType::parse("decimal")};
    static const ValueType text;
    const auto *found =
        std::find_if(types.begin(), types.end(), [&](const ValueType &type) { return fits(type, value); });
    return found == types.end() ? text : *found;
}

// By how the value is written.
ValueType typeOfValue(const DumpRow &row, const std::string &value) {
    static const ValueType flag = ValueType::parse("boolean");
    if (row.form == DumpRow::Form::Flag || value == "true" || value == "false") {
        return flag;
    }
    return row.form == DumpRow::Form::Number || row.path.ends_with("NumberOfEntries") ? integerType(value)
                                                                                      : ValueType();
}

// An unknown type as the report names it: where columns are out of place it may be a value, and that a secret.
std::string shownType(std::string_view parameter, const std::string &type) {
    const bool word =
        std::all_of(type.begin(), type.end(), [](unsigned char c) { return std::isalnum(c) != 0 || c == ':'; });
    return word && !isSecretName(parameter) ? ": " + type : "";
}

bool looksReadOnly(std::string_view name) {
    const auto ends = [name](std::string_view ending) { return name.ends_with(ending); };
    return std::any_of(std::begin(kReadOnlyEndings), std::end(kReadOnlyEndings), ends) &&
           std::none_of(std::begin(kWritableEndings), std::end(kWritableEndings), ends);
}

} // namespace

Typing::Typing(const std::vector<DumpRow> &rows) : numbers_(areUsualNumbers(rows)) {}

void Typing::describe(const DumpRow &row, Entry &entry, ImportReport &report) {
    if (entry.path != path_) {
        path_ = entry.path;
        pattern_ = patternOf(path_);
    }
    if (row.exact) {
        entry.type = row.exact;
        entry.writable = row.writable.value_or(false);
        entry.fallback = row.fallback;
        return;
    }
    const Definition *known = knownParameter(pattern_ + entry.name);
    const std::optional<ValueType> said = row.type.empty() ? std::nullopt : typeOfWord(row.type, numbers_);
    if (!row.type.empty() && !said && (numbers_ || !isInteger(row.type))) {
        report.count(Reason::UnknownType, entry.fullPath() + shownType(entry.name, row.type));
    }
    if (row.form == DumpRow::Form::Number && !said && !known && !fits(ValueType::parse("decimal"), *entry.value)) {
        report.count(Reason::Misfit,
                     entry.fullPath() + ": " + quotedValue(entry.name, *entry.value) + " is not a number");
    }
    // What is known is narrower than what files say, but the file's type is the device's own.
    const bool useKnown = known && (fits(known->type, *entry.value) || !said);
    entry.type = useKnown ? known->type : said ? *said : typeOfValue(row, *entry.value);
    entry.writable = row.writable ? row.writable : known ? known->writable : !looksReadOnly(entry.name);
    entry.guessed = !said;
    if (useKnown) {
        entry.fallback = known->fallback;
    }
}

} // namespace sandbox
