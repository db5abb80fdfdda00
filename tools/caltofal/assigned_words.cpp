// SPDX-License-Identifier: MIT
#include "caltofal/assigned_words.h"

#include "pages/text.h"

#include <algorithm>

namespace cli {

using namespace pages;

namespace {

constexpr const char *kAnyValue = "=...";

// Of the last object among the words, else the help's word for one.
std::string lastObject(const std::vector<std::string> &words) {
    const auto last = std::find_if(words.rbegin(), words.rend(), beginsObject);
    return last == words.rend() ? "OBJECT" : *last;
}

// The command that sets the parameter of that name or path.
std::string setCommand(const std::string &name, const std::vector<std::string> &before, const std::string &command) {
    if (command == "wifi radio" || command == "wifi ssid") {
        return "caltofal wifi set" + command.substr(command.find(' ')) + " NUMBER " + name + kAnyValue;
    }
    const std::string object = name.find('.') == std::string::npos ? lastObject(before) + " " : "";
    return "caltofal set " + object + name + kAnyValue;
}

} // namespace

bool beginsObject(const std::string &word) {
    return word.starts_with("Device.") || word.starts_with("InternetGatewayDevice.");
}

std::string withoutValue(const std::string &word) {
    const size_t equals = word.find('=');
    return equals == std::string::npos ? word : word.substr(0, equals) + kAnyValue;
}

std::string takesNoValue(const std::string &slip, const std::vector<std::string> &before, const std::string &command) {
    const std::string name = slip.substr(0, slip.find_first_of("=:"));
    if (name.empty()) {
        return "a word that begins with \"=\" names nothing";
    }
    return inQuotes(name.substr(name.rfind('.') + 1)) + " takes no value here (did you mean " +
           setCommand(name, before, command) + "?)";
}

} // namespace cli
