// SPDX-License-Identifier: MIT
#include "nouns/nouns.h"

#include "arguments.h"
#include "caltofal.h"
#include "failure.h"
#include "page.h"

#include <cstdio>
#include <memory>

namespace cli {
namespace {

// As the library hands it to a host: in network byte order.
std::string asNumber(const std::string &address) {
    const uint32_t number = IPConvertTouint(address.c_str());
    char digits[16];
    snprintf(digits, sizeof digits, "0x%08x", number);
    return digits;
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
                             {"number", "As a number in memory", ipv4 ? Json(asNumber(address)) : Json(), {}},
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
