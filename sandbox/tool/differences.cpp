// SPDX-License-Identifier: MIT
#include "tool/differences.h"

#include "value/escape.h"

#include <ostream>

namespace sandbox {

namespace {

void printWhole(char sign, const std::string &path, const std::optional<std::string> &value, std::ostream &out) {
    out << sign << ' ' << path << (value ? " = " + inQuotes(*value) : "") << '\n';
}

} // namespace

void printDifferences(const std::vector<Difference> &differences, std::ostream &out) {
    for (const Difference &difference : differences) {
        switch (difference.kind) {
        case Difference::Kind::Added:
            printWhole('+', difference.path, difference.after, out);
            break;
        case Difference::Kind::Removed:
            printWhole('-', difference.path, difference.before, out);
            break;
        case Difference::Kind::Changed:
            out << "~ " << difference.path << ": " << inQuotes(*difference.before) << " -> "
                << inQuotes(*difference.after) << '\n';
            break;
        }
    }
}

} // namespace sandbox
