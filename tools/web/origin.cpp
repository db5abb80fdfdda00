// SPDX-License-Identifier: MIT
#include "origin.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace web {
namespace {

std::string lower(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](unsigned char c) { return tolower(c); });
    return result;
}

bool isNumber(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) { return isdigit(c) != 0; });
}

// "name:80" -> "name", {"[::1]:80"} -> "[::1]"; the whole text where no port stands at its end.
std::string_view withoutPort(std::string_view host) {
    const size_t colon = host.rfind(':');
    return colon != std::string_view::npos && isNumber(host.substr(colon + 1)) ? host.substr(0, colon) : host;
}

std::string_view withoutPort(std::string_view host, std::string_view port) {
    return host.ends_with(port) ? host.substr(0, host.size() - port.size()) : host;
}

} // namespace

OwnHosts::OwnHosts(std::string listening, std::vector<std::string> names)
    : listening_(std::move(listening)), names_(std::move(names)) {
    std::transform(names_.begin(), names_.end(), names_.begin(), [](const std::string &name) { return lower(name); });
}

bool OwnHosts::isOwn(std::string_view host) const {
    const std::string asked = lower(host);
    if (asked.empty()) {
        return false;
    }
    const bool isListening = asked == listening_ || (listening_.ends_with(":80") && asked + ":80" == listening_);
    return isListening || std::find(names_.begin(), names_.end(), withoutPort(asked)) != names_.end();
}

bool isFromOwnPage(std::string_view host, std::string_view origin, std::string_view fetchSite) {
    if (!fetchSite.empty() && fetchSite != "same-origin") {
        return false;
    }
    if (origin.empty()) {
        return !fetchSite.empty();
    }
    const std::string own = lower(host);
    const std::string page = lower(origin);
    for (const auto &[scheme, port] :
         {std::pair<std::string_view, std::string_view>{"http://", ":80"}, {"https://", ":443"}}) {
        if (page.starts_with(scheme)) {
            return withoutPort(std::string_view(page).substr(scheme.size()), port) == withoutPort(own, port);
        }
    }
    return false;
}

} // namespace web
