// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/pages.h"

#include <optional>

namespace pages {
namespace {

// Nothing in it where the gateway does not have it.
Object ifThere(const Object &wanted) {
    try {
        const std::vector<Object> found = get({wanted}, Reading::Leaf);
        return found.empty() ? Object() : found.front();
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        return {};
    }
}

template <size_t Size>
void store(char (&field)[Size], const Object &object, const char *parameter) {
    valueOf(object, parameter).copy(field, Size - 1);
}

// Each object by itself; whether there is an address.
bool fillPiecemeal(LANv4Info &lan) {
    const Object address = ifThere({"Device.IP.Interface.1.IPv4Address.1", {{"IPAddress"}, {"SubnetMask"}}});
    const Object pool =
        ifThere({"Device.DHCPv4.Server.Pool.1", {{"Enable"}, {"MinAddress"}, {"MaxAddress"}, {"LeaseTime"}}});
    const Value server = flagOf(valueOf(ifThere({"Device.DHCPv4.Server", {{"Enable"}}}), "Enable"));
    const Value active = server == false ? server : flagOf(valueOf(pool, "Enable"));
    store(lan.sIPv4Address, address, "IPAddress");
    store(lan.sIPv4Subnet, address, "SubnetMask");
    store(lan.sMACAddr, ifThere({"Device.Ethernet.Interface.1", {{"MACAddress"}}}), "MACAddress");
    store(lan.sDHCPv4StartIP, pool, "MinAddress");
    store(lan.sDHCPv4EndIP, pool, "MaxAddress");
    if (active.isFlag()) {
        lan.bDHCPv4Active = active == true ? 1 : 0;
    }
    if (const Value lease = numberOf(valueOf(pool, "LeaseTime")); lease.isNumber()) {
        lan.nLeaseTimeSec = static_cast<int32_t>(lease.whole());
    }
    return lan.sIPv4Address[0] != '\0';
}

// The library's function answers nothing where an object is missing: then the page has what the others tell.
Section ipv4Section(std::vector<std::string> &notes) {
    LANv4Info lan{};
    lan.bDHCPv4Active = kUntouchedFlag;
    untouch(lan.nLeaseTimeSec);
    try {
        ask([&] { return ZintuGet_LANv4Info(&lan); }, {"no LAN"});
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || !fillPiecemeal(lan)) {
            throw;
        }
        notes.push_back(std::string(failure.what()) + "; what it tells is missing here");
    }
    return {"ipv4",
            "IPv4",
            {
                {"address", "Address", text(lan.sIPv4Address)},
                {"subnet_mask", "Subnet mask", text(lan.sIPv4Subnet)},
                {"mac_address", "MAC address", text(lan.sMACAddr)},
                {"dhcp_active", "DHCP server", flag(lan.bDHCPv4Active)},
                {"dhcp_start", "DHCP range from", text(lan.sDHCPv4StartIP)},
                {"dhcp_end", "DHCP range to", text(lan.sDHCPv4EndIP)},
                {"lease_time_s", "Lease time", number(lan.nLeaseTimeSec), "s"},
            }};
}

Section ipv6Section(std::vector<std::string> & /*notes*/) {
    LANv6Info lan{};
    lan.bIPv6Active = kUntouchedFlag;
    lan.bPDActive = kUntouchedFlag;
    untouch(lan.nPrefixLength, lan.nLeaseTimeSec, lan.nManualPrefixLength);
    ask([&] { return ZintuGet_LANv6Info(&lan); }, {"no LAN"});
    return {"ipv6",
            "IPv6",
            {
                {"active", "Active", flag(lan.bIPv6Active)},
                {"address", "Address", text(lan.sIPv6Address)},
                {"prefix_length_bits", "Prefix length", number(lan.nPrefixLength), "bits"},
                {"mode", "Mode", text(lan.sLANv6Mode)},
                {"dns1", "DNS server 1", text(lan.sDNSv6Primary)},
                {"dns2", "DNS server 2", text(lan.sDNSv6Secondary)},
                {"domain", "Domain", text(lan.sDomainNamev6)},
                {"dhcp_start", "DHCP range from", text(lan.sDHCPv6StartIP)},
                {"dhcp_end", "DHCP range to", text(lan.sDHCPv6EndIP)},
                {"lease_time_s", "Lease time", number(lan.nLeaseTimeSec), "s"},
                {"prefix_delegation", "Prefix delegation", flag(lan.bPDActive)},
                {"manual_prefix", "Manual prefix", text(lan.sManualPrefix)},
                {"manual_prefix_length_bits", "Manual prefix length", number(lan.nManualPrefixLength), "bits"},
            }};
}

// Both reasons, unless they are one.
[[noreturn]] void lacksBoth(const Failure &first, const Failure &second) {
    const std::string reason = second.what();
    throw Failure(first.category(), first.what() + (reason == first.what() ? "" : "; " + reason), first.object(),
                  first.code());
}

// A half that the gateway does not have is told in a note.
void addHalf(Page &page, Section (*half)(std::vector<std::string> &), std::optional<Failure> &missing) {
    try {
        page.sections.push_back(half(page.notes));
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        if (missing) {
            lacksBoth(*missing, failure);
        }
        missing = failure;
        page.notes.emplace_back(failure.what());
    }
}

} // namespace

Page lan(LanPart part) {
    Page page;
    if (part != LanPart::Both) {
        page.sections.push_back(part == LanPart::Ipv4 ? ipv4Section(page.notes) : ipv6Section(page.notes));
        return page;
    }
    std::optional<Failure> missing;
    addHalf(page, ipv4Section, missing);
    addHalf(page, ipv6Section, missing);
    return page;
}

Page wholeLan() {
    return lan(LanPart::Both);
}

} // namespace pages
