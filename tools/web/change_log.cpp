// SPDX-License-Identifier: MIT
#include "change_log.h"

#include "log_line.h"
#include "pages/text.h"

#include <string>
#include <vector>

namespace web {
namespace {

constexpr size_t kNamesMax = 1000; // bytes of a line that names take

std::vector<std::string> namesOf(const pages::Value &body) {
    std::vector<std::string> names;
    for (const auto &[name, value] : body.members()) {
        if (!value.isObject()) {
            names.push_back(name);
        }
        for (const auto &[parameter, unused] : value.members()) {
            names.push_back(std::string(pages::withoutDot(name)) + "." + parameter);
        }
    }
    return names;
}

// " NAME,NAME and 3 more", "" for none.
std::string listed(const std::vector<std::string> &names) {
    std::string text;
    for (size_t i = 0; i < names.size(); ++i) {
        const std::string name = plain(names[i]);
        if (i > 0 && text.size() + name.size() > kNamesMax) {
            return text + " and " + std::to_string(names.size() - i) + " more";
        }
        text += (i == 0 ? " " : ",") + name;
    }
    return text;
}

} // namespace

void logChange(const Call &call, const Request &request, Status status) {
    logLine(request.address, request.method + " " + plain(request.target) + listed(namesOf(call.body)), status);
}

} // namespace web
