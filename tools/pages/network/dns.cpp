// SPDX-License-Identifier: MIT

#include "pages/network/pages.h"

#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/network/current.h"

namespace pages {
namespace {

constexpr size_t kAddressSize = 16;
constexpr const char *kServers = "Device.DNS.Client.Server";

} // namespace

Page dns(const std::string &given) {
    const std::string interface = given.empty() ? gatewayInterface() : checkedPath(given);
    get({{interface}}, Reading::Leaf); // the library's functions do not say that it is not there
    char used1[kAddressSize] = "";
    char used2[kAddressSize] = "";
    ask([&] { return ZintuGet_WanDns(interface.c_str(), used1, used2); }, {interface + ": no DNS servers", {kServers}});
    int32_t automatic = kUntouched;
    char static1[kAddressSize] = "";
    char static2[kAddressSize] = "";
    ask([&] { return ZintuGet_WanStaticDns(interface.c_str(), &automatic, static1, static2); },
        {interface + ": no static DNS servers"});
    return {{
        {"",
         "",
         {
             {"interface", "Interface", interface},
             {"dns1", "Server 1", text(used1)},
             {"dns2", "Server 2", text(used2)},
             {"automatic", "Automatic", flag(automatic)},
         }},
        {"static", "Static", {{"dns1", "Server 1", text(static1)}, {"dns2", "Server 2", text(static2)}}},
    }};
}

} // namespace pages
