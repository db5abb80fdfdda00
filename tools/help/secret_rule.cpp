// SPDX-License-Identifier: MIT
#include "help/secret_rule.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace help {
namespace {

// Endings of names, in any case, as makers and mistakes have it, with or without a number behind them. A key that only
// names an entry ends otherwise.
constexpr std::string_view kEndings[] = {"community", "credential", "credentials", "key", "passphrase",
                                         "passwd",    "password",   "pin",         "psk", "pwd",
                                         "secret",    "token",      "userpass"};
constexpr std::string_view kWords[] = {"pass", "pw"}; // likewise, but words of their own: no Bypass
constexpr std::string_view kAnywhere = "psk";         // a word of its own too
// Of these "Key" is the whole name.
constexpr std::string_view kHarmless[] = {"commandkey", "parameterkey", "publiccredential", "publickey"};
constexpr std::string_view kKey = "key";

// What stands before a URL's user, where a word begins. In a user's name stands none of kNoUser, behind a port one of
// kPortEnds.
constexpr std::string_view kUrlMarks[] = {"//", "sip:", "sips:"};
constexpr std::string_view kNoUser = "/ \t\"";
constexpr std::string_view kPortEnds = "/?#,;> \t\"";
constexpr std::string_view kDigits = "0123456789";
constexpr size_t kPortMax = 5; // digits

constexpr std::string_view kHiddenInUrl = ":(hidden)@";
constexpr std::string_view kArrow = "=>";

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
}

// Without a number behind it, and without "Value": Password2, Passphrase_1, PSKValue.
std::string_view withoutNumber(std::string_view name) {
    return name.substr(0, name.find_last_not_of("0123456789_") + 1);
}

std::string_view stemOf(std::string_view name) {
    constexpr std::string_view kValue = "value";
    name = withoutNumber(name);
    const bool value = lowered(name).ends_with(kValue);
    return value ? withoutNumber(name.substr(0, name.size() - kValue.size())) : name;
}

// Whether a word of the name begins there.
bool beginsWord(std::string_view name, size_t at) {
    return at == 0 || std::isalpha(static_cast<unsigned char>(name[at - 1])) == 0 ||
           std::isupper(static_cast<unsigned char>(name[at])) != 0;
}

// Behind the next mark of a URL from there on; npos for none.
size_t behindUrlMark(std::string_view text, size_t at) {
    for (; at < text.size(); ++at) {
        if (at > 0 && (std::isalnum(static_cast<unsigned char>(text[at - 1])) != 0 || text[at - 1] == '/')) {
            continue;
        }
        for (const std::string_view mark : kUrlMarks) {
            if (lowered(text.substr(at, mark.size())) == mark) {
                return at + mark.size();
            }
        }
    }
    return std::string_view::npos;
}

// Of "host:80/..." no user: nothing else has a dot, a bracket or an "@" before and a port behind.
bool isHostWithPort(std::string_view before, std::string_view behind) {
    const size_t digits = std::min(behind.find_first_not_of(kDigits), behind.size());
    const bool port = digits != 0 && digits <= kPortMax &&
                      (digits == behind.size() || kPortEnds.find(behind[digits]) != std::string_view::npos);
    return port && before.find_first_of(".]@") != std::string_view::npos;
}

// The first password of a URL in a line; empty where there is none. People leave "@", "/" and blanks in passwords as
// they are: it goes on to the line's last "@".
std::string_view urlPasswordIn(std::string_view line) {
    const size_t last = line.rfind('@');
    if (last == std::string_view::npos) {
        return {};
    }
    for (size_t at = behindUrlMark(line, 0); at < last; at = behindUrlMark(line, at)) {
        const std::string_view rest = line.substr(at, last - at);
        const size_t bracket = rest.starts_with('[') ? rest.substr(0, rest.find('@')).find(']') : 0;
        const size_t colon = rest.find(':', bracket == std::string_view::npos ? 0 : bracket);
        if (colon == std::string_view::npos) {
            break;
        }
        const std::string_view user = rest.substr(0, colon);
        const std::string_view password = rest.substr(colon + 1);
        const bool named = user.find_first_of(kNoUser) == std::string_view::npos;
        if (named && !isHostWithPort(user, password)) {
            return password;
        }
    }
    return {};
}

} // namespace

bool isSecretName(std::string_view parameter) {
    const std::string_view own = parameter.substr(parameter.rfind('.') + 1);
    const std::string_view stem = stemOf(own);
    const std::string name = lowered(stem);
    const auto ends = [&name](std::string_view ending) { return name.ends_with(ending); };
    if (lowered(own) == kKey || std::any_of(std::begin(kHarmless), std::end(kHarmless), ends)) {
        return false;
    }
    const size_t anywhere = name.find(kAnywhere);
    return std::any_of(std::begin(kEndings), std::end(kEndings), ends) ||
           std::any_of(
               std::begin(kWords), std::end(kWords),
               [&](std::string_view word) { return ends(word) && beginsWord(stem, stem.size() - word.size()); }) ||
           (anywhere != std::string::npos && beginsWord(stem, anywhere));
}

std::string withoutUrlPasswords(std::string text) {
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view password = urlPasswordIn(std::string_view(text).substr(start, end - start));
        start = end + 1;
        if (!password.empty()) {
            start = start - password.size() + kHidden.size();
            text.replace(static_cast<size_t>(password.data() - text.data()), password.size(), kHidden);
        }
    }
    return text;
}

bool isHidden(std::string_view parameter, std::string_view value) {
    return (value == kHidden && isSecretName(parameter)) ||
           (value.find(kHiddenInUrl) != std::string_view::npos && !urlPasswordIn(value).empty());
}

std::string withoutSecretRow(std::string line) {
    size_t arrow = line.find(kArrow);
    while (arrow != std::string::npos && !isSecretName(std::string_view(line).substr(0, arrow))) {
        arrow = line.find(kArrow, arrow + 1); // the library writes "==>" in front
    }
    const size_t start = arrow + kArrow.size();
    const size_t end = line.ends_with(']') ? line.size() - 1 : line.size();
    if (arrow != std::string::npos && start < end) {
        line.replace(start, end - start, kHidden);
    }
    return line;
}

} // namespace help
