// SPDX-License-Identifier: MIT
#include "pages/secret.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
#include <iterator>

namespace pages {
namespace {

// Endings of names; a key that only names an entry ends otherwise.
constexpr std::string_view kEndings[] = {"Passphrase",   "Password",   "Secret", "WEPKey",
                                         "PreSharedKey", "PrivateKey", "PIN",    "Pin"};

thread_local bool showing = false;

} // namespace

bool isSecret(std::string_view parameter) {
    return std::any_of(std::begin(kEndings), std::end(kEndings),
                       [&](std::string_view ending) { return parameter.ends_with(ending); });
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

void refuseHidden(std::string_view parameter, std::string_view value) {
    if (value == kHidden && isSecret(parameter)) {
        throw Usage(std::string(parameter) + ": " + quoted(kHidden) + " stands in place of a secret and is none");
    }
}

} // namespace pages
