// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/layer/left_messages.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"
#include "pages/secret.h"

namespace pages {
namespace {

constexpr const char *kNoEthernetWan =
    "Device.IP.Interface: none has the Alias cpe-EthWan-IPIntf-1, by which the library knows the Ethernet WAN";
constexpr const char *kForwarding = "Device.Routing.Router.1.IPv4Forwarding";

ZintuWanInfo untouchedInfo() {
    ZintuWanInfo info{};
    untouch(info.nWanIpIfIndex, info.nIdleDisconnectTime, info.nMaxMRUSize, info.bDnsAuto, info.bVlanEnable,
            info.nVlanID);
    info.bIpv6Enable = kUntouchedFlag;
    return info;
}

Page sectionsOf(const ZintuWanInfo &info, const char *dnsTitle) {
    std::vector<std::string> notes;
    Page page{{
        {"",
         "",
         {
             {"status", "Status", text(info.sStatus)},
             {"mode", "Mode", text(info.sOperMode)},
             {"type", "Type", text(info.sWanIpType)},
             {"link_type", "Link type", text(info.sWanLinkType)},
             {"name", "Name", text(info.sName)},
             {"interface", "Interface", text(info.sWanIpInterface)},
             {"interface_index", "Interface index", number(info.nWanIpIfIndex)},
             {"lower_layers", "Lower layers", text(info.sLowerLayers)},
             {"description", "Description", text(info.sDescription)},
             {"ipv4_mode", "IPv4 mode", text(info.sIpv4Mode)},
             {"ip_address", "IP address", text(info.sIPAddress)},
             {"subnet_mask", "Subnet mask", text(info.sSubnetMask)},
             {"gateway", "Gateway", text(info.sGateway)},
         }},
        {"ppp",
         "PPP",
         {
             {"interface", "Interface", text(info.sPppInterface)},
             {"static_address", "Static address", text(info.sPppStaticAddress)},
             {"username", "User name", text(info.sUsername)},
             {"password", "Password", shownValue("Password", text(info.sPassword))},
             {"connection_trigger", "Connection trigger", text(info.sConnectionTrigger)},
             {"idle_disconnect_time_s", "Idle disconnect time", number(info.nIdleDisconnectTime), "s"},
             {"max_mru_bytes", "Maximum receive unit", number(info.nMaxMRUSize), "bytes"},
             {"ac_name", "Access concentrator", text(info.sACName)},
             {"service_name", "Service name", text(info.sServiceName)},
         }},
        {"dns",
         dnsTitle,
         {
             {"automatic", "Automatic", flag(info.bDnsAuto)},
             {"dns1", "Server 1", server(text(info.sDNS1), notes)},
             {"dns2", "Server 2", server(text(info.sDNS2), notes)},
         }},
        {"vlan",
         "VLAN",
         {
             {"enabled", "Enabled", flag(info.bVlanEnable)},
             {"id", "VLAN ID", number(info.nVlanID)},
         }},
        {"ipv6",
         "IPv6",
         {
             {"enabled", "Enabled", flag(info.bIpv6Enable)},
             {"type", "Type", text(info.sIpv6Type)},
             {"address", "Address", text(info.sIpv6Address)},
             {"next_hop", "Next hop", text(info.sIpv6NextHop)},
         }},
    }};
    page.notes = notes;
    return page;
}

// The WAN being down is an answer, not a failure: no forwarding entry tells a gateway then.
Page noted(const ZintuWanInfo &info, const char *dnsTitle, Lacking &lacking) {
    Page page = sectionsOf(info, dnsTitle);
    needNoDhcpClient(lacking, text(info.sDNS1));
    tellFinalDot(text(info.sWanIpInterface), lacking, page.notes);
    lacking.tell(page.notes);
    if (info.sGateway[0] == '\0' && !lacking.has(kForwarding)) {
        page.notes.push_back(
            "no IPv4 forwarding entry tells the gateway: none with a GatewayIPAddress has the Interface " +
            inQuotes(std::string(withoutDot(text(info.sWanIpInterface))) + ".") +
            ", with its last dot, and an Origin that begins with DHCPv4, Static or X_LANTIQ_COM_PPPoE");
    }
    return page;
}

} // namespace

Page wan() {
    ZintuWanInfo info = untouchedInfo();
    const LeftMessages left;
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_DefWanInfo(&info); },
                {kNoDefaultWan,
                 {"Device.X_ZINTU_CurrentNetwork", kForwarding, "Device.Ethernet.VLANTermination"},
                 CALTOFAL_NO_MATCH});
    if (const std::string interface(withoutDot(text(info.sWanIpInterface))); lacking.has(interface)) {
        throw noSuchInterface(interface);
    }
    if (lacking.has(kNameServers) && text(info.sWanIpType) == "dynamic") {
        untouch(info.bDnsAuto); // the library goes by the servers set by hand
    }
    return noted(info, "DNS setting", lacking);
}

// The operation mode's bits are the flags by which a router is refused and a Wi-Fi link is known.
Page bridgeWan() {
    const int mode = operationMode();
    ZintuWanInfo info = untouchedInfo();
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_BrWanInfo(static_cast<uint32_t>(mode), &info); },
                {"the gateway is not a bridge: its operation mode is " + std::to_string(mode),
                 {"Device.Routing."},
                 CALTOFAL_NO_MATCH});
    // The library gives these fixed values, and its "Down" means only that DHCP gave no address.
    info.bIpv6Enable = kUntouchedFlag;
    info.sIpv6Type[0] = '\0';
    untouch(info.bVlanEnable, info.nVlanID, info.bDnsAuto);
    if (text(info.sStatus) == "Down") {
        info.sStatus[0] = '\0';
    }
    return noted(info, "DNS in use", lacking);
}

Report wanInterfaceName() {
    char name[PARAM_VALUE_SIZE] = "";
    ask([&] { return zintu_GetWanIfName(name); }, {"the current WAN interface has no name"});
    return single("name", text(name));
}

Report ethernetWanInterface() {
    char object[128] = "";
    try {
        ask([&] { return ZintuGet_EthWanObjName(object); }, {kNoEthernetWan});
    } catch (const Failure &failure) {
        if (failure.code() != CALTOFAL_NO_MATCH) {
            throw;
        }
        throw Failure(Category::Absent, kNoEthernetWan, failure.object(), failure.code());
    }
    return single("interface", text(object));
}

} // namespace pages
