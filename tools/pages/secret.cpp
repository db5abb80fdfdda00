// SPDX-License-Identifier: MIT
#include "pages/secret.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <set>
#include <strings.h>

namespace pages {
namespace {

// Endings of names, in any case, as makers and mistakes have it; a key that only names an entry ends otherwise.
// sandbox/value/secret.cpp has the same.
constexpr std::string_view kEndings[] = {"authkey",      "passphrase", "passwd", "password", "pin",
                                         "presharedkey", "privatekey", "psk",    "pwd",      "secret",
                                         "token",        "userpass",   "wepkey"};

constexpr std::string_view kArrow = "=>";
constexpr size_t kNotedLeast = 5; // bytes: what is shorter stands in other words as well

thread_local bool showing = false;

std::mutex access;
std::set<std::string, std::less<>> noted;

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
    return std::any_of(std::begin(kEndings), std::end(kEndings), [&](std::string_view ending) {
        return parameter.size() >= ending.size() &&
               strncasecmp(parameter.data() + parameter.size() - ending.size(), ending.data(), ending.size()) == 0;
    });
}

ShowSecrets::ShowSecrets(bool show) : before_(showing) {
    showing = show;
}

ShowSecrets::~ShowSecrets() {
    showing = before_;
}

std::string shownText(std::string_view parameter, std::string_view value) {
    return std::string(!showing && !value.empty() && isSecret(parameter) ? kHidden : value);
}

Value shownValue(std::string_view parameter, std::string_view value) {
    return typed(parameter, shownText(parameter, value));
}

std::string shownDefinition(std::string_view parameter, const std::string &definition) {
    constexpr std::string_view kDefault = " default=";
    const size_t found = definition.find(kDefault);
    if (showing || found == std::string::npos || !isSecret(parameter)) {
        return definition;
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
    const std::lock_guard lock(access);
    for (const std::string &secret : noted) {
        replaceAll(line, secret, kHidden);
    }
    return line;
}

void refuseHidden(std::string_view parameter, std::string_view value) {
    if (value == kHidden && isSecret(parameter)) {
        throw Usage(std::string(parameter) + ": " + inQuotes(kHidden) + " stands in place of a secret and is none");
    }
}

} // namespace pages
