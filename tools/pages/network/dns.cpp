// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"
#include "pages/objects/words.h"

#include <memory>

namespace cli {
namespace {

constexpr size_t kAddressSize = 16;
constexpr const char *kServers = "Device.DNS.Client.Server";

Report run(const std::string &argument) {
    const std::string interface = argument.empty() ? gatewayInterface() : checkedPath(argument);
    get({{interface, {}}}, Reading::Leaf); // the library's functions do not say that it is not there
    char used1[kAddressSize] = "";
    char used2[kAddressSize] = "";
    ask([&] { return ZintuGet_WanDns(interface.c_str(), used1, used2); }, {interface + ": no DNS servers", {kServers}});
    int32_t automatic = kUntouched;
    char static1[kAddressSize] = "";
    char static2[kAddressSize] = "";
    ask([&] { return ZintuGet_WanStaticDns(interface.c_str(), &automatic, static1, static2); },
        {interface + ": no static DNS servers"});
    return report(Page{{
                           {"",
                            "",
                            {
                                {"interface", "Interface", interface, {}},
                                {"dns1", "Server 1", text(used1), {}},
                                {"dns2", "Server 2", text(used2), {}},
                                {"automatic", "Automatic", flag(automatic), {}},
                            }},
                           {"static",
                            "Static",
                            {
                                {"dns1", "Server 1", text(static1), {}},
                                {"dns2", "Server 2", text(static2), {}},
                            }},
                       },
                       {}});
}

Run define(CLI::App &command) {
    const auto interface = std::make_shared<std::string>();
    addOptionalArgument(command, "IPINTERFACE", *interface, "An IP interface object (none: the default WAN's)");
    return [interface] { return run(*interface); };
}

} // namespace

const Noun kDnsNoun = {"dns", "The IPv4 DNS servers of a WAN interface", "\nDevice.IP.Interface.3", define};

} // namespace cli
