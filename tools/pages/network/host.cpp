// SPDX-License-Identifier: MIT
#include "pages/network/pages.h"

#include "caltofal.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/page.h"

namespace pages {
Page host(const std::string &address) {
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
    return pageOf({
        {"instance", "Instance", instance},
        {"object", "Object", "Device.Hosts.Host." + std::to_string(instance)},
    });
}

} // namespace pages
