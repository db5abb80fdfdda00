// SPDX-License-Identifier: MIT
// Pass phrases, passwords and keys: shown only where they were asked for.
#pragma once

#include "help/secret_rule.h"
#include "pages/value.h"

#include <string>
#include <string_view>

namespace pages {

using help::isHidden;
using help::isSecretName;
using help::kHidden;
using help::withoutUrlPasswords;

// A parameter's value without what is secret of it, whether secrets are shown or not.
std::string hiddenText(std::string_view parameter, std::string_view value);

// While it lives, the pages of its thread show secrets.
class ShowSecrets {
  public:
    explicit ShowSecrets(bool show = true);
    ShowSecrets(const ShowSecrets &) = delete;
    ShowSecrets &operator=(const ShowSecrets &) = delete;
    ~ShowSecrets();

  private:
    bool before_;
};

// A parameter's value as a page shows it: kHidden for a secret that is not empty, and in URLs.
std::string shownText(std::string_view parameter, std::string_view value);

// The same with the type that it looks like: typed() of text.h.
Value shownValue(std::string_view parameter, std::string_view value);

// Notes the value of a parameter that passes by, for withoutSecrets().
void noteSecret(std::string_view parameter, std::string_view value);

// A line that others wrote, with kHidden in place of noted secrets, of what stands behind "SECRET=>", and of passwords
// in URLs.
std::string withoutSecrets(std::string line);

// A parameter's definition, of which the default of a secret is one as well.
std::string shownDefinition(std::string_view parameter, const std::string &definition);

// Throws Usage for a secret that is to become what stands in its place: somebody writes back what was shown.
void refuseHidden(std::string_view parameter, std::string_view value);

} // namespace pages
