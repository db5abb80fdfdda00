// SPDX-License-Identifier: MIT
#include "pages/failure.h"
#include "pages/network/pages.h"

#include <initializer_list>
#include <optional>

namespace pages {
namespace {

struct Glance {
    const char *key;
    const char *title;
    Page (*page)();
    std::initializer_list<const char *> fields; // what to show of it
};

const Glance kGlances[] = {
    {"mode", "Operation mode", mode, {"mode"}},
    {"wan", "WAN", wan, {"status", "type", "ip_address", "gateway", "interface"}},
    {"ipv6", "WAN IPv6", ipv6, {"type", "address"}},
    {"dsl", "DSL", dsl, {"status", "profile"}},
    {"atm", "ATM", atm, {"qos_class"}},
    {"lan", "LAN", wholeLan, {"ipv4.address", "ipv4.subnet_mask", "ipv6.address"}},
    {"multiwan", "Multi-WAN", multiWan, {"sharing", "wan1.interface", "wan2.interface"}},
    {"iptv", "IPTV set-top box", iptv, {"set_top_box"}},
};

std::string summary(const Page &page, const Glance &glance) {
    std::string result;
    for (const char *field : glance.fields) {
        const std::string value = readable(page.value(field));
        if (value != "-") {
            result += (result.empty() ? "" : "  ") + value;
        }
    }
    return result.empty() ? "-" : result;
}

} // namespace

Report status() {
    Report result;
    std::optional<Failure> first;
    size_t failed = 0;
    for (const Glance &glance : kGlances) {
        try {
            const Page page = glance.page();
            result.json[glance.key] = Report(page).json;
            result.table.rows.push_back({{glance.title, Style::Heading}, {summary(page, glance)}});
        } catch (const Failure &failure) {
            result.json[glance.key] = errorValue(failure);
            const bool absent = failure.category() == Category::Absent;
            const Cell words = absent ? Cell{"none"} : Cell{std::string("(") + failure.what() + ")", Style::Bad};
            result.table.rows.push_back({{glance.title, Style::Heading}, words});
            first = first ? first : failure;
            failed += absent ? 0 : 1;
            if (absent && &glance == std::begin(kGlances)) { // what every gateway has that the library is made for
                result.notes.emplace_back(failure.what());
            }
        }
    }
    if (failed == std::size(kGlances)) {
        throw Failure(*first);
    }
    return result;
}

} // namespace pages
