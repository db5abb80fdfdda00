// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"

#include <memory>

namespace cli {
namespace {

Report run(const std::string &address) {
    std::string identifier = address;
    if (zintu_isValidIPv4Address(address.c_str()) != 0) {
        try {
            identifier = checkedMac(address);
        } catch (const Usage &) {
            throw Usage("\"" + address + "\" is neither a MAC address nor an IPv4 address");
        }
    }
    const auto call = [&] {
        const int instance = GetDeviceID(identifier.data());
        return instance > 0 ? instance : -1;
    };
    const int instance = ask(call, {"Device.Hosts.Host: none has the address " + address});
    return report(Page{{{"",
                         "",
                         {
                             {"instance", "Instance", instance, {}},
                             {"object", "Object", "Device.Hosts.Host." + std::to_string(instance), {}},
                         }}},
                       {}});
}

Run define(CLI::App &command) {
    const auto address = std::make_shared<std::string>();
    addArgument(command, "ADDRESS", *address, "A MAC or IPv4 address");
    return [address] { return run(*address); };
}

} // namespace

const Noun kHostNoun = {"host", "Find a host of the LAN by its address", "00:00:5e:00:53:10\n192.168.1.10", define};

} // namespace cli
