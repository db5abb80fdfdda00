// SPDX-License-Identifier: MIT
#include "change_log.h"

#include "log_line.h"
#include "pages/text.h"

#include <string>
#include <vector>

namespace web {
namespace {

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

} // namespace

void logChange(const Call &call, const Request &request, Status status) {
    std::string text = request.method + " " + plain(request.target);
    const char *before = " ";
    for (const std::string &name : namesOf(call.body)) {
        text += before + plain(name);
        before = ",";
    }
    logLine(request.address, text, status);
}

} // namespace web
