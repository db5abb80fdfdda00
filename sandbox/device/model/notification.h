// SPDX-License-Identifier: MIT
//
// What a client asks the service daemon for: one JSON object such as
//
//     {"nid": 138,"type": false,"pn1": "Action", "pv1": "SCAN","pn2": "Name", "pv2": "wlan0"}
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace device {

struct Notification {
    std::string idKey;                        // "notify_id" or "nid"
    std::string id;                           // its number
    std::map<std::string, std::string> named; // "pv1" by what "pn1" says, and so on; any bytes
};

// Empty for anything else: malformed, not an object, without an identifier, or with values of other types.
std::optional<Notification> parseNotification(std::string_view json);

} // namespace device
