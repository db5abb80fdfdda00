// SPDX-License-Identifier: MIT
#include "tool/changes.h"

#include "value/escape.h"

#include <ostream>

namespace sandbox {

namespace {

void printWhole(char sign, const std::string &path, const std::optional<std::string> &value, std::ostream &out) {
    out << sign << ' ' << path << (value ? " = " + inQuotes(*value) : "") << '\n';
}

} // namespace

void printChanges(const std::vector<Change> &changes, std::ostream &out) {
    for (const Change &change : changes) {
        switch (change.kind) {
        case Change::Kind::Added:
            printWhole('+', change.path, change.after, out);
            break;
        case Change::Kind::Removed:
            printWhole('-', change.path, change.before, out);
            break;
        case Change::Kind::Changed:
            out << "~ " << change.path << ": " << inQuotes(*change.before) << " -> " << inQuotes(*change.after) << '\n';
            break;
        }
    }
}

} // namespace sandbox
