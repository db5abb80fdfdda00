// SPDX-License-Identifier: MIT
#include "resource.h"

#include <algorithm>
#include <utility>

namespace web {
namespace {

constexpr Resource kResources[] = {
    {"", kGet, Subject::Index},
    {"/status", kGet, Subject::Status},
    {"/mode", kGet, Subject::Mode},
    {"/gateway", kGet, Subject::Gateway},
    {"/wan", kGet, Subject::Wan},
    {"/dns", kGet, Subject::Dns},
    {"/ipv6", kGet, Subject::Ipv6},
    {"/dsl", kGet, Subject::Dsl},
    {"/atm", kGet, Subject::Atm},
    {"/lan", kGet, Subject::Lan},
    {"/multiwan", kGet, Subject::MultiWan},
    {"/iptv", kGet, Subject::Iptv},
    {"/hosts", kGet, Subject::Hosts},
    {"/mesh", kGet | kPatch, Subject::Mesh, true, "dry_run "},
    {"/mesh/sync", kPost, Subject::MeshSync},
    {"/objects", kGet | kPatch, Subject::Objects, false, "path leaf where dry_run db_only "},
    {"/wifi/radios", kGet, Subject::WifiRadios},
    {"/wifi/radios/{N}", kGet | kPatch, Subject::WifiRadio, false, "dry_run db_only "},
    {"/wifi/ssids", kGet, Subject::WifiSsids},
    {"/wifi/ssids/{N}", kGet | kPatch, Subject::WifiSsid, false, "dry_run db_only "},
    {"/secrets/wifi/ssids/{N}", kGet, Subject::WifiSecret},
    {"/wifi/channels/{IF}", kGet, Subject::WifiChannels, true},
    {"/wifi/stations/{IF}", kGet, Subject::WifiStations, true},
    {"/wifi/survey", kGet, Subject::WifiSurvey, true, "empty "},
    {"/wifi/endpoint", kGet, Subject::WifiEndpoint, true},
    {"/wifi/scans", kPost, Subject::WifiScans},
    {"/wifi/wps", kPost, Subject::WifiWps},
    {"/jobs", kGet, Subject::Jobs},
    {"/jobs/{ID}", kGet | kDelete, Subject::Job},
};

constexpr std::pair<unsigned, std::string_view> kMethods[] = {
    {kGet, "GET"}, {kPost, "POST"}, {kPatch, "PATCH"}, {kDelete, "DELETE"}};

// What stands for the braces of a pattern; false when the path is another one.
bool matches(std::string_view pattern, std::string_view path, std::string &argument) {
    const size_t brace = pattern.find('{');
    if (brace == std::string_view::npos) {
        return pattern == path;
    }
    const bool begins = path.size() > brace && path.starts_with(pattern.substr(0, brace));
    if (!begins || path.find('/', brace) != std::string_view::npos) {
        return false;
    }
    argument = path.substr(brace);
    return true;
}

} // namespace

std::span<const Resource> resources() {
    return kResources;
}

bool isApi(std::string_view path) {
    return path == "/api" || path.starts_with("/api/");
}

Route findRoute(std::string_view path) {
    Route route;
    if (!path.starts_with(kApi)) {
        return route;
    }
    path.remove_prefix(kApi.size());
    if (path == "/") {
        path = {};
    }
    const auto *const found = std::find_if(std::begin(kResources), std::end(kResources), [&](const Resource &resource) {
        return matches(resource.path, path, route.argument);
    });
    route.resource = found == std::end(kResources) ? nullptr : found;
    return route;
}

std::string methodNames(const Resource &resource, bool readOnly) {
    std::string names;
    for (const auto &[method, name] : kMethods) {
        if ((resource.methods & method) != 0 && (!readOnly || method == kGet)) {
            names += (names.empty() ? "" : ", ") + std::string(name);
        }
    }
    return names;
}

unsigned methodOf(std::string_view name) {
    if (name == "HEAD") {
        return kGet;
    }
    for (const auto &[method, word] : kMethods) {
        if (word == name) {
            return method;
        }
    }
    return 0;
}

} // namespace web
