// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/network/pages.h"

#include <optional>

namespace pages {
namespace {

constexpr int32_t kInfiniteLease = -1; // of TR-181
constexpr const char *kIpv6Address = "Device.IP.Interface.1.IPv6Address.1";

using Half = Section (*)(Lacking &lacking);

Section ipv4Section(Lacking &lacking) {
    LANv4Info lan{};
    lan.bDHCPv4Active = kUntouchedFlag;
    untouch(lan.nLeaseTimeSec);
    lacking.ask([&] { return ZintuGet_LANv4Info(&lan); }, {"no LAN"});
    return {"ipv4",
            "IPv4",
            {
                {"address", "Address", text(lan.sIPv4Address)},
                {"subnet_mask", "Subnet mask", text(lan.sIPv4Subnet)},
                {"mac_address", "MAC address", text(lan.sMACAddr)},
                {"dhcp_active", "DHCP server", flag(lan.bDHCPv4Active)},
                {"dhcp_start", "DHCP range from", text(lan.sDHCPv4StartIP)},
                {"dhcp_end", "DHCP range to", text(lan.sDHCPv4EndIP)},
                {"lease_time_s", "Lease time", number(lan.nLeaseTimeSec), "s",
                 lan.nLeaseTimeSec == kInfiniteLease ? "infinite" : ""},
            }};
}

// Where no address is told the library makes one of the manual prefix.
void clearMadeAddress(LANv6Info &lan, const Lacking &lacking) {
    const bool ofNothing = lan.sManualPrefix[0] == '\0' && text(lan.sIPv6Address) == "1";
    if (lacking.has(kIpv6Address) || ofNothing) {
        lan.sIPv6Address[0] = '\0';
        untouch(lan.nPrefixLength);
    }
}

Section ipv6Section(Lacking &lacking) {
    LANv6Info lan{};
    lan.bIPv6Active = kUntouchedFlag;
    lan.bPDActive = kUntouchedFlag;
    untouch(lan.nPrefixLength, lan.nLeaseTimeSec, lan.nManualPrefixLength);
    lacking.ask([&] { return ZintuGet_LANv6Info(&lan); }, {"no LAN"});
    clearMadeAddress(lan, lacking);
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

// Both reasons, unless they are one. What explains both stands behind the second alone.
[[noreturn]] void lacksBoth(const Failure &first, const Failure &second) {
    const std::string reason = second.what();
    std::string both = first.what();
    if (reason != both) {
        const size_t explained = explanationIn(both);
        both.erase(reason.ends_with(both.substr(explained)) ? explained : both.size());
        both += "; " + reason;
    }
    throw Failure(first.category(), both, first.object(), first.code());
}

// Throws Failure where the gateway has nothing of it.
void addHalf(Page &page, Half half, Lacking &lacking) {
    const Section section = half(lacking);
    lacking.tell(page.notes);
    page.sections.push_back(section);
}

// A half that the gateway does not have is told in a note.
void addHalfIfAny(Page &page, Half half, std::optional<Failure> &missing) {
    Lacking lacking;
    try {
        addHalf(page, half, lacking);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        if (missing) {
            lacksBoth(*missing, failure);
        }
        missing = failure;
        const size_t before = page.notes.size();
        lacking.name(page.notes);
        if (page.notes.size() == before) {
            page.notes.emplace_back(failure.what());
        }
    }
}

} // namespace

Page lan(LanPart part) {
    Page page;
    if (part != LanPart::Both) {
        Lacking lacking;
        addHalf(page, part == LanPart::Ipv4 ? ipv4Section : ipv6Section, lacking);
        return page;
    }
    std::optional<Failure> missing;
    addHalfIfAny(page, ipv4Section, missing);
    addHalfIfAny(page, ipv6Section, missing);
    return page;
}

Page wholeLan() {
    return lan(LanPart::Both);
}

} // namespace pages
