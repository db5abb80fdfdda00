// SPDX-License-Identifier: MIT
#include "value/secret.h"

#include "value/escape.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace sandbox {

namespace {

// The command-line tool hides the same, and says more of it: tools/pages/secret.cpp.
constexpr std::string_view kEndings[] = {"community", "credential", "credentials", "key", "passphrase",
                                         "passwd",    "password",   "pin",         "psk", "pwd",
                                         "secret",    "token",      "userpass"};
constexpr std::string_view kWords[] = {"pass", "pw"}; // likewise, but words of their own: no Bypass
constexpr std::string_view kAnywhere = "psk";         // a word of its own too
// Of these "Key" is the whole name.
constexpr std::string_view kHarmless[] = {"commandkey", "parameterkey", "publiccredential", "publickey"};
constexpr std::string_view kKey = "key";

constexpr std::string_view kUrlMark = "://";
constexpr std::string_view kUrlEnds = "/?# \t\r\n\"";

constexpr std::string_view kHiddenInUrl = ":(hidden)@";

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
}

// Without a number behind it, and without "Value": Password2, PSKValue.
std::string_view withoutNumber(std::string_view name) {
    return name.substr(0, name.find_last_not_of("0123456789") + 1);
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
    for (size_t at = text.find(kUrlMark); at != std::string::npos; at = text.find(kUrlMark, at)) {
        at += kUrlMark.size();
        const std::string_view authority = std::string_view(text).substr(at, text.find_first_of(kUrlEnds, at) - at);
        const size_t host = authority.rfind('@');
        const size_t colon = authority.find(':') + 1;
        if (host != std::string_view::npos && colon != 0 && colon < host) {
            text.replace(at + colon, host - colon, kHidden);
        }
    }
    return text;
}

bool isHidden(std::string_view parameter, std::string_view value) {
    return (value == kHidden && isSecretName(parameter)) ||
           (value.find(kUrlMark) != std::string_view::npos && value.find(kHiddenInUrl) != std::string_view::npos);
}

std::string quotedValue(std::string_view parameter, std::string_view value) {
    return isSecretName(parameter) ? std::string(kHidden) : quotedShort(withoutUrlPasswords(std::string(value)));
}

std::string shownName(std::string_view name) {
    const size_t end = name.find_first_of("=:");
    return std::string(name.substr(0, end)) + (end == std::string_view::npos ? "" : "...");
}

std::string quotedName(std::string_view name) {
    return quotedShort(shownName(name));
}

std::string withoutSecrets(std::string line) {
    constexpr std::string_view kArrow = "=>";
    size_t arrow = line.find(kArrow);
    while (arrow != std::string::npos && !isSecretName(std::string_view(line).substr(0, arrow))) {
        arrow = line.find(kArrow, arrow + 1); // the library writes "==>" in front
    }
    const size_t start = arrow + kArrow.size();
    const size_t end = line.ends_with(']') ? line.size() - 1 : line.size();
    if (arrow != std::string::npos && start < end) {
        line.replace(start, end - start, kHidden);
    }
    return withoutUrlPasswords(std::move(line));
}

} // namespace sandbox
