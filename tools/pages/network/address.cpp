// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/objects/words.h"
#include "pages/page.h"

#include <memory>

namespace cli {
namespace {

// The library hands a host the number in network byte order: its bytes in memory are the same on every machine.
std::string bytesInMemory(const std::string &address) {
    const uint32_t number = IPConvertTouint(address.c_str());
    const std::string digits = hexOf({reinterpret_cast<const char *>(&number), sizeof number});
    std::string result = digits.substr(0, 2);
    for (size_t i = 2; i < digits.size(); i += 2) {
        result += " " + digits.substr(i, 2);
    }
    return result;
}

Report run(const std::string &address) {
    const char *text = address.c_str();
    const bool ipv4 = zintu_isValidIPv4Address(text) == 0;
    const bool ipv6 = validationCheck_IPv6Addr(text) == 0;
    const bool mac = zintu_isValidMacAddress(text) == 0;
    if (!ipv4 && !ipv6 && !mac) {
        throw Failure(Exit::Refused, "\"" + address + "\" is neither an IPv4 nor an IPv6 nor a MAC address");
    }
    const char *ofIp = ipv4 ? "IPv4" : "IPv6";
    return report(Page{{{"",
                         "",
                         {
                             {"address", "Address", address, {}},
                             {"kind", "Kind", mac ? "MAC" : ofIp, {}},
                             {"bytes", "Bytes in memory", ipv4 ? Json(bytesInMemory(address)) : Json(), {}},
                         }}},
                       {}});
}

Run define(CLI::App &command) {
    const auto address = std::make_shared<std::string>();
    addArgument(command, "ADDRESS", *address, "The text to judge");
    return [address] { return run(*address); };
}

} // namespace

const Noun kAddressNoun = {"address", "Tell what kind of address a text is", "192.168.1.1\nfe80::1", define};

} // namespace cli
