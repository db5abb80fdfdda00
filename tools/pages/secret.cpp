// SPDX-License-Identifier: MIT
#include "pages/secret.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <mutex>
#include <set>

namespace pages {
namespace {

// Endings of names, in any case, as makers and mistakes have it, with or without a number behind them. A key that only
// names an entry ends otherwise. sandbox/value/secret.cpp has the same.
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
constexpr size_t kNotedLeast = 5; // bytes: what is shorter stands in other words as well

thread_local bool showing = false;

std::mutex access;
std::set<std::string, std::less<>> noted;

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

void replaceAll(std::string &text, std::string_view part, std::string_view by) {
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
}

// The library writes a row of a table as "OBJECT.NAME=>VALUE", in brackets or at the line's end, "==>" may stand
// before. sandbox/value/secret.cpp does the same.
void hideRow(std::string &line) {
    size_t arrow = line.find(kArrow);
    while (arrow != std::string::npos && !isSecret(std::string_view(line).substr(0, arrow))) {
        arrow = line.find(kArrow, arrow + 1);
    }
    if (arrow == std::string::npos) {
        return;
    }
    const size_t start = arrow + kArrow.size();
    const size_t end = line.ends_with(']') ? line.size() - 1 : line.size();
    if (end > start) {
        line.replace(start, end - start, kHidden);
    }
}

} // namespace

bool isSecret(std::string_view parameter) {
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
    return (value == kHidden && isSecret(parameter)) ||
           (value.find(kHiddenInUrl) != std::string_view::npos && !urlPasswordIn(value).empty());
}

std::string hiddenText(std::string_view parameter, std::string_view value) {
    return isSecret(parameter) && !value.empty() ? std::string(kHidden) : withoutUrlPasswords(std::string(value));
}

ShowSecrets::ShowSecrets(bool show) : before_(showing) {
    showing = show;
}

ShowSecrets::~ShowSecrets() {
    showing = before_;
}

std::string shownText(std::string_view parameter, std::string_view value) {
    return showing ? std::string(value) : hiddenText(parameter, value);
}

Value shownValue(std::string_view parameter, std::string_view value) {
    return typed(parameter, shownText(parameter, value));
}

std::string shownDefinition(std::string_view parameter, const std::string &definition) {
    constexpr std::string_view kDefault = " default=";
    const size_t found = definition.find(kDefault);
    if (showing || found == std::string::npos || !isSecret(parameter)) {
        return showing ? definition : withoutUrlPasswords(definition);
    }
    return definition.substr(0, found + kDefault.size()) + std::string(kHidden);
}

void noteSecret(std::string_view parameter, std::string_view value) {
    if (value.size() >= kNotedLeast && isSecret(parameter)) {
        const std::lock_guard lock(access);
        noted.emplace(value);
    }
}

std::string withoutSecrets(std::string line) {
    hideRow(line);
    line = withoutUrlPasswords(std::move(line));
    const std::lock_guard lock(access);
    for (const std::string &secret : noted) {
        replaceAll(line, secret, kHidden);
    }
    return line;
}

void refuseHidden(std::string_view parameter, std::string_view value) {
    if (isHidden(parameter, value)) {
        throw Usage(std::string(parameter) + ": " + inQuotes(kHidden) + " stands in place of a secret and is none");
    }
}

} // namespace pages
