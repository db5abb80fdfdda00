// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal/print.h"
#include "pages/failure.h"
#include "pages/network/pages.h"

#include <initializer_list>
#include <optional>

namespace cli {
namespace {

struct Glance {
    const char *key;
    const char *title;
    Page (*page)();
    std::initializer_list<const char *> fields; // what to show of it
};

const Glance kGlances[] = {
    {"mode", "Operation mode", modePage, {"mode"}},
    {"wan", "WAN", wanPage, {"status", "type", "ip_address", "gateway", "interface"}},
    {"ipv6", "WAN IPv6", ipv6Page, {"type", "address"}},
    {"dsl", "DSL", dslPage, {"status", "profile"}},
    {"atm", "ATM", atmPage, {"qos_class"}},
    {"lan", "LAN", lanPage, {"ipv4.address", "ipv4.subnet_mask", "ipv6.address"}},
    {"multiwan", "Multi-WAN", multiWanPage, {"sharing", "wan1.interface", "wan2.interface"}},
    {"iptv", "IPTV set-top box", iptvPage, {"set_top_box"}},
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

Run define(CLI::App & /*command*/) {
    return [] {
        Report result{Json::object(), {}, {}, {}};
        std::optional<Failure> first;
        size_t failed = 0;
        for (const Glance &glance : kGlances) {
            try {
                const Page page = glance.page();
                result.json[glance.key] = report(page).json;
                result.table.rows.push_back({{glance.title, Style::Heading}, {summary(page, glance)}});
            } catch (const Failure &failure) {
                result.json[glance.key] = errorJson(failure);
                result.table.rows.push_back(
                    {{glance.title, Style::Heading}, {std::string("(") + failure.what() + ")", Style::Bad}});
                first = first ? first : failure;
                ++failed;
            }
        }
        if (failed == std::size(kGlances)) {
            throw Failure(*first);
        }
        return result;
    };
}

} // namespace

const Noun kStatusNoun = {"status", "All pages at a glance", "\n--json", define};

} // namespace cli
