// SPDX-License-Identifier: MIT
#include "pages/failure.h"
#include "pages/layer/request_log.h"
#include "pages/network/pages.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <span>

namespace pages {
namespace {

struct Glance {
    const char *key;
    const char *title;
    Page (*page)();
    std::initializer_list<const char *> fields; // what to show of it
    // Beginning of the objects that are the page's own: with one of them there, the page says what else is missing.
    const char *own = nullptr;
};

const Glance kGlances[] = {
    {"mode", "Operation mode", mode, {"mode"}},
    {"wan", "WAN", wan, {"status", "type", "ip_address", "gateway", "interface"}, "Device.X_ZINTU_CurrentNetwork"},
    {"ipv6", "WAN IPv6", ipv6, {"type", "address"}, "Device.X_ZINTU_CurrentNetwork"},
    {"dsl", "DSL", dsl, {"status", "profile"}},
    {"atm", "ATM", atm, {"qos_class"}},
    {"lan", "LAN", wholeLan, {"ipv4.address", "ipv4.subnet_mask", "ipv6.address"}},
    {"multiwan", "Multi-WAN", multiWan, {"sharing", "wan1.interface", "wan2.interface"}},
    {"iptv", "IPTV set-top box", iptv, {"set_top_box"}},
};

// A fact a line, by the pages' names and fields.
void addFacts(Table &table, const Page &page, const Glance &glance) {
    for (const char *field : glance.fields) {
        table.forScripts.push_back({{std::string(glance.key) + "." + field}, {readable(page.value(field))}});
    }
    if (page.value("enabled").isFlag()) {
        table.forScripts.push_back({{std::string(glance.key) + ".enabled"}, {readable(page.value("enabled"))}});
    }
}

std::string summary(const Page &page, const Glance &glance) {
    if (page.value("enabled") == false) {
        return "off";
    }
    std::string result;
    bool known = false;
    for (const char *field : glance.fields) {
        const std::string value = readable(page.value(field));
        known = known || value != "-";
        result += (result.empty() ? "" : "  ") + value; // each in its place
    }
    return known ? result : "-";
}

// Whether the gateway lacks all that a failed page asked for.
bool lacksAll(const Failure &failure, const Glance &glance, std::span<const Request> asked) {
    const bool answered = glance.own && std::any_of(asked.begin(), asked.end(), [&](const Request &request) {
                              return request.code == 0 && objectNames(request).starts_with(glance.own);
                          });
    return failure.category() == Category::Absent && !answered;
}

} // namespace

Report status() {
    Report result;
    std::optional<Failure> first;
    size_t failed = 0;
    for (const Glance &glance : kGlances) {
        const RequestLog log;
        try {
            const Page page = glance.page();
            result.json[glance.key] = Report(page).json;
            result.table.rows.push_back({{glance.title, Style::Heading}, {summary(page, glance)}});
            addFacts(result.table, page, glance);
        } catch (const Failure &failure) {
            result.json[glance.key] = errorValue(failure);
            const bool absent = lacksAll(failure, glance, log.requests());
            const Cell words = absent ? Cell{"none"} : Cell{std::string("(") + failure.what() + ")", Style::Bad};
            result.table.rows.push_back({{glance.title, Style::Heading}, words});
            result.table.forScripts.push_back({{glance.key}, words});
            first = first ? first : failure;
            failed += failure.category() == Category::Absent ? 0 : 1;
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
