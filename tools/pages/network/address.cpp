// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/network/pages.h"
#include "pages/page.h"

namespace pages {
namespace {

// The library hands a host the number in network byte order: its bytes in memory are the same on every machine.
std::string bytesInMemory(const std::string &address) {
    const uint32_t number = IPConvertTouint(address.c_str());
    const std::string digits = hexOf({reinterpret_cast<const char *>(&number), sizeof(number)});
    std::string result = digits.substr(0, 2);
    for (size_t i = 2; i < digits.size(); i += 2) {
        result += " " + digits.substr(i, 2);
    }
    return result;
}

} // namespace

Report address(const std::string &text) {
    const bool ipv4 = zintu_isValidIPv4Address(text.c_str()) == 0;
    const bool ipv6 = validationCheck_IPv6Addr(text.c_str()) == 0;
    const bool mac = zintu_isValidMacAddress(text.c_str()) == 0;
    if (!ipv4 && !ipv6 && !mac) {
        throw Failure(Category::Refused, "\"" + text + "\" is neither an IPv4 nor an IPv6 nor a MAC address");
    }
    const char *ofIp = ipv4 ? "IPv4" : "IPv6";
    Report result = pageOf({
        {"address", "Address", text},
        {"kind", "Kind", mac ? "MAC" : ofIp},
        {"bytes", "Bytes in memory", ipv4 ? Value(bytesInMemory(text)) : Value()},
    });
    if (text == "0.0.0.0") { // what a page of the gateway would take for an address that is not set
        result.json["address"] = text;
        result.table.rows.front()[1].text = text;
        result.table.forScripts.front()[1].text = text;
    }
    return result;
}

} // namespace pages
