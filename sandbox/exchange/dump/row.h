// SPDX-License-Identifier: MIT
//
// What a file of another program says of a gateway, before it is judged.
#pragma once

#include "exchange/import_report.h"
#include "value/value_type.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox {

struct DumpRow {
    // How the value was written, which tells its type where nothing else does.
    enum class Form { Text, Flag, Number };

    std::string path; // as in the file; an object's may lack the final dot
    bool object = false;
    std::optional<std::string> value;
    Form form = Form::Text;
    std::string type;               // a word or a number; "" for none
    std::optional<ValueType> exact; // the type, where the file has this project's own words for it
    std::string fallback;           // the default value
    std::optional<bool> writable;
    size_t line = 0;
};

// What a report names the row by: its path, or its line where more than a path may stand in its place.
std::string exampleOf(const DumpRow &row);

struct Dump {
    std::vector<DumpRow> rows;
    ImportReport report;
};

} // namespace sandbox
