// SPDX-License-Identifier: MIT
#include "caltofal/commands/commands.h"
#include "caltofal/typed_words.h"
#include "pages/failure.h"
#include "pages/network/pages.h"

namespace cli {
namespace {

using namespace pages;

Show prepareWan(const Arguments &given) {
    if (given.given("--bridge") + given.given("--if-name") + given.given("--ethernet") > 1) {
        throw Usage("--bridge, --if-name and --ethernet exclude each other");
    }
    if (given.given("--if-name")) {
        return wanInterfaceName;
    }
    if (given.given("--ethernet")) {
        return ethernetWanInterface;
    }
    return given.given("--bridge") ? bridgeWan : wan;
}

Show prepareGateway(const Arguments &given) {
    if (given.word("--mode-section") == kAllModes) {
        return connectionModes;
    }
    if (given.given("--mode-section")) {
        return [mode = given.word("--mode-section")] { return uciSectionOfMode(mode); };
    }
    return gateway;
}

Show prepareDns(const Arguments &given) {
    return [interface = given.word("IPINTERFACE")] { return dns(interface); };
}

Show prepareLan(const Arguments &given) {
    const bool ipv4 = given.given("--ipv4");
    const LanPart one = ipv4 ? LanPart::Ipv4 : LanPart::Ipv6;
    return [part = ipv4 == given.given("--ipv6") ? LanPart::Both : one] { return lan(part); };
}

Show prepareHost(const Arguments &given) {
    return [address = given.word("ADDRESS")] { return host(address); };
}

Show prepareLowerLayers(const Arguments &given) {
    const LowerLayers how{.walk = given.given("--walk"), .whole = given.given("--all")};
    return [object = given.word("OBJECT"), how] { return lowerLayers(object, how); };
}

Show prepareAddress(const Arguments &given) {
    return [text = given.word("ADDRESS")] { return address(text); };
}

const Command kNetworkCommands[] = {
    {"status", "All pages at a glance", "\n--json", just<status>},
    {"mode", "The operation mode", "", just<mode>},
    {"gateway",
     "The WAN connection that carries the default route",
     "\n--mode-section\n--mode-section VDSL_PTM",
     prepareGateway,
     {{"--mode-section", Take::Option,
       "Only the UCI section of the WAN connection of that mode; without one, the modes that there are", "[WORD]"}}},
    {"wan",
     "The default WAN connection",
     "\n--bridge -g bridge\n--if-name\n--ethernet",
     prepareWan,
     {{"--bridge", Take::Flag, "The WAN of a device in bridge mode"},
      {"--if-name", Take::Flag, "Only the Linux name of the WAN interface"},
      {"--ethernet", Take::Flag, "Only the IP interface object of the Ethernet WAN"}}},
    {"dns",
     "The IPv4 DNS servers of a WAN interface",
     "\nDevice.IP.Interface.3",
     prepareDns,
     {{"IPINTERFACE", Take::Optional, "An IP interface object (none: the default WAN's)"}}},
    {"ipv6", "IPv6 on the default WAN connection", "", just<ipv6>},
    {"dsl", "DSL line 1: state, rates, quality, modes", "", just<dsl>},
    {"atm", "ATM link 1", "", just<atm>},
    {"lan",
     "The LAN's addresses and DHCP settings",
     "\n--ipv4 --json",
     prepareLan,
     {{"--ipv4", Take::Flag, "Only IPv4"}, {"--ipv6", Take::Flag, "Only IPv6"}}},
    {"multiwan", "Fail-over and load balancing between two WANs", "", just<multiWan>},
    {"iptv", "Whether an IPTV set-top box port is bridged", "", just<iptv>},
    {"hosts", "All clients of the LAN", "\n--columns name,address", just<hosts>},
    {"host",
     "One client of the LAN, by its address",
     "00:00:5e:00:53:10\n192.168.1.10",
     prepareHost,
     {{"ADDRESS", Take::Word, "A MAC or IPv4 address"}}},
    {"lower-layers",
     "What lies below an object in the interface stack",
     "Device.IP.Interface.3 --walk",
     prepareLowerLayers,
     {{"OBJECT", Take::Word, "An object of the interface stack"},
      {"--walk", Take::Flag, "Go on downwards to the physical interface"},
      {"--all", Take::Flag,
       "What is directly below, also what does not fit the library's record; with --walk every branch of the walk"}}},
    {"address",
     "Tell what kind of address a text is",
     "192.168.1.1\nfe80::1",
     prepareAddress,
     {{"ADDRESS", Take::Text, "The text to judge"}}},
};

} // namespace

std::span<const Command> networkCommands() {
    return kNetworkCommands;
}

} // namespace cli
