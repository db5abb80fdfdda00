// SPDX-License-Identifier: MIT
#include "pages/secret.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <mutex>
#include <set>
#include <utility>

namespace pages {
namespace {

constexpr size_t kNotedLeast = 5; // bytes: what is shorter stands in other words as well

thread_local bool showing = false;

std::mutex access;
std::set<std::string, std::less<>> noted;

void replaceAll(std::string &text, std::string_view part, std::string_view by) {
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
}

} // namespace

std::string hiddenText(std::string_view parameter, std::string_view value) {
    return isSecretName(parameter) && !value.empty() ? std::string(kHidden) : withoutUrlPasswords(std::string(value));
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
    if (showing || found == std::string::npos || !isSecretName(parameter)) {
        return showing ? definition : withoutUrlPasswords(definition);
    }
    return definition.substr(0, found + kDefault.size()) + std::string(kHidden);
}

void noteSecret(std::string_view parameter, std::string_view value) {
    if (value.size() >= kNotedLeast && isSecretName(parameter)) {
        const std::lock_guard lock(access);
        noted.emplace(value);
    }
}

std::string withoutSecrets(std::string line) {
    line = withoutUrlPasswords(help::withoutSecretRow(std::move(line)));
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
