// SPDX-License-Identifier: MIT
#include "replaced.h"

#include <regex.h>
#include <stdexcept>

namespace test {

std::string replaced(const std::string &text, const char *expression, const std::string &replacement) {
    regex_t compiled;
    if (regcomp(&compiled, expression, REG_EXTENDED) != 0) {
        throw std::invalid_argument(expression);
    }
    std::string result;
    const char *rest = text.c_str();
    for (regmatch_t match[2]; regexec(&compiled, rest, 2, match, 0) == 0; rest += match[0].rm_eo) {
        result.append(rest, static_cast<size_t>(match[1].rm_so < 0 ? match[0].rm_so : match[1].rm_eo));
        result += replacement;
    }
    regfree(&compiled);
    return result + rest;
}

} // namespace test
