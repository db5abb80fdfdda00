// SPDX-License-Identifier: MIT
#include "tool/differences.h"

#include "value/escape.h"
#include "value/secret.h"

#include <ostream>

namespace sandbox {

void printDifferences(const std::vector<Difference> &differences, bool secrets, std::ostream &out) {
    for (const auto &[kind, path, before, after] : differences) {
        const bool hides = !secrets && isSecretName(path);
        const auto shown = [hides, secrets](const std::string &value) {
            return hides && !value.empty() ? std::string(kHidden)
                                           : inQuotes(secrets ? value : withoutUrlPasswords(value));
        };
        const auto whole = [&](const std::optional<std::string> &value) { return value ? " = " + shown(*value) : ""; };
        switch (kind) {
        case Difference::Kind::Added:
            out << "+ " << path << whole(after) << '\n';
            break;
        case Difference::Kind::Removed:
            out << "- " << path << whole(before) << '\n';
            break;
        case Difference::Kind::Changed:
            out << "~ " << path << ": " << shown(*before) << " -> " << shown(*after) << '\n';
            break;
        }
    }
}

} // namespace sandbox
