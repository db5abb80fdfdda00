// SPDX-License-Identifier: MIT
#include "resource.h"

#include <algorithm>
#include <utility>

namespace web {
namespace {

constexpr Resource kResources[] = {
    {"", Subject::Index, kGet},
    {"/status", Subject::Status, kGet},
    {"/mode", Subject::Mode, kGet},
    {"/gateway", Subject::Gateway, kGet},
    {"/wan", Subject::Wan, kGet},
    {"/dns", Subject::Dns, kGet},
    {"/ipv6", Subject::Ipv6, kGet},
    {"/dsl", Subject::Dsl, kGet},
    {"/atm", Subject::Atm, kGet},
    {"/lan", Subject::Lan, kGet},
    {"/multiwan", Subject::MultiWan, kGet},
    {"/iptv", Subject::Iptv, kGet},
    {"/hosts", Subject::Hosts, kGet},
    {"/mesh", Subject::Mesh, kGet | kPatch, true, "dry_run "},
    {"/mesh/sync", Subject::MeshSync, kPost},
    {"/objects", Subject::Objects, kGet | kPatch, false, "path leaf where dry_run db_only "},
    {"/wifi/radios", Subject::WifiRadios, kGet},
    {"/wifi/radios/{N}", Subject::WifiRadio, kGet | kPatch, false, "dry_run db_only "},
    {"/wifi/ssids", Subject::WifiSsids, kGet},
    {"/wifi/ssids/{N}", Subject::WifiSsid, kGet | kPatch, false, "dry_run db_only "},
    {"/secrets/wifi/ssids/{N}", Subject::WifiSecret, kGet},
    {"/wifi/channels/{IF}", Subject::WifiChannels, kGet, true},
    {"/wifi/stations/{IF}", Subject::WifiStations, kGet, true},
    {"/wifi/survey", Subject::WifiSurvey, kGet, true},
    {"/wifi/endpoint", Subject::WifiEndpoint, kGet, true},
    {"/wifi/scans", Subject::WifiScans, kPost},
    {"/wifi/wps", Subject::WifiWps, kPost},
    {"/jobs", Subject::Jobs, kGet},
    {"/jobs/{ID}", Subject::Job, kGet | kDelete},
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
    const auto found = std::find_if(std::begin(kResources), std::end(kResources), [&](const Resource &resource) {
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
