// SPDX-License-Identifier: MIT
// The resources below /api/v1, as a table: what there is, and what may be done with it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace web {

enum Method : uint8_t { kGet = 1, kPost = 2, kPatch = 4, kDelete = 8 };

enum class Subject : uint8_t {
    Index,
    Status,
    Mode,
    Gateway,
    Wan,
    Dns,
    Ipv6,
    Dsl,
    Atm,
    Lan,
    MultiWan,
    Iptv,
    Hosts,
    Mesh,
    MeshSync,
    Objects,
    WifiRadios,
    WifiRadio,
    WifiSsids,
    WifiSsid,
    WifiSecret,
    WifiChannels,
    WifiStations,
    WifiSurvey,
    WifiEndpoint,
    WifiScans,
    WifiWps,
    Jobs,
    Job,
};

struct Resource {
    std::string_view path; // below kApi; a last component in braces stands for any text
    unsigned methods;      // of Method
    Subject subject;
    // Runs the device's tools, or waits for others that do: never made by the threads that serve the connections.
    bool slow = false;
    std::string_view queries = {}; // the names that its query may have, each with a blank after it
};

inline constexpr std::string_view kApi = "/api/v1";

std::span<const Resource> resources();

struct Route {
    const Resource *resource = nullptr; // null: there is no such resource
    std::string argument;               // what stands for the braces
};

// Whether a decoded path belongs to the resources rather than to the page's files.
bool isApi(std::string_view path);

// For a path of which isApi() holds.
Route findRoute(std::string_view path);

// The methods as words, joined by ", "; reading alone with `readOnly`.
std::string methodNames(const Resource &resource, bool readOnly);

// The method of that name, HEAD being GET without its body; 0 for one that is not served.
unsigned methodOf(std::string_view name);

} // namespace web
