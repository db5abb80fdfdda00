// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/lacking.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"
#include "pages/objects/hint.h"

namespace pages {
namespace {

constexpr size_t kAddressSize = 16;

} // namespace

Page dns(const std::string &given) {
    const std::string interface = given.empty() ? gatewayInterface() : checkedPath(given);
    if (!given.empty()) {
        // The library's functions do not say that it is not there.
        objects::hinting(interface, [&] { return get({{interface}}, Reading::Leaf); });
    }
    char used1[kAddressSize] = "";
    char used2[kAddressSize] = "";
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_WanDns(interface.c_str(), used1, used2); },
                {interface + ": no DNS servers", {kNameServers}});
    int32_t automatic = kUntouched;
    char static1[kAddressSize] = "";
    char static2[kAddressSize] = "";
    lacking.ask([&] { return ZintuGet_WanStaticDns(interface.c_str(), &automatic, static1, static2); },
                {interface + ": no static DNS servers"});
    if (lacking.has(kNameServers)) {
        untouch(automatic); // the library takes its absence for a table that is empty
    }
    std::vector<std::string> notes;
    Page page{{
        {"",
         "",
         {
             {"interface", "Interface", interface},
             {"dns1", "Server 1 in use", server(text(used1), notes)},
             {"dns2", "Server 2 in use", server(text(used2), notes)},
             {"automatic", "No static server", flag(automatic)},
         }},
        {"static",
         "Static servers",
         {{"dns1", "Server 1", server(text(static1), notes)}, {"dns2", "Server 2", server(text(static2), notes)}}},
    }};
    page.notes = notes;
    needNoDhcpClient(lacking, text(used1));
    lacking.name(page.notes);
    return page;
}

void needNoDhcpClient(Lacking &lacking, const std::string &found) {
    if (!found.empty() && found != "0.0.0.0") {
        lacking.needNot("Device.DHCPv4.Client");
    }
}

Value server(const std::string &text, std::vector<std::string> &notes) {
    const bool address = zintu_isValidIPv4Address(text.c_str()) == 0 || validationCheck_IPv6Addr(text.c_str()) == 0;
    if (!text.empty() && !address) {
        notes.push_back("DNS server " + inQuotes(text) + " is not an address: the record holds " +
                        std::to_string(kAddressSize - 1) + " characters, a longer list is cut");
    }
    return text;
}

} // namespace pages
