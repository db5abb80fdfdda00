// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <span>

namespace pages::wifi {
namespace {

struct Answer {
    MsgHeader header{};
    Answer() = default;
    Answer(const Answer &) = delete;
    Answer &operator=(const Answer &) = delete;
    ~Answer() { faltocal_finalize(&header); }
};

void readEntries(const std::string &table, MacAccessList &list) {
    Answer answer;
    ask([&] { return faltocal_send_main_multi_obj(&answer.header, table.c_str(), "get", "get", 0); },
        {table + ": no MAC filter"});
    for (ObjectNode *object = caltofal_nextObject(&answer.header, nullptr); object;
         object = caltofal_nextObject(&answer.header, object)) {
        GetMacAccessList(object, table.c_str(), &list);
    }
}

std::span<const MacAccessEntry> entries(const MacAccessList &list) {
    return {list.entries, static_cast<size_t>(list.count)};
}

bool isListed(const MacAccessList &list, const std::string &mac) {
    return std::any_of(entries(list).begin(), entries(list).end(), [&](const MacAccessEntry &entry) {
        const std::string listed = text(entry.macAddress);
        return listed.size() == mac.size() &&
               my_strnicmp(listed.c_str(), mac.c_str(), static_cast<int>(mac.size())) == 0;
    });
}

// With the filter off everybody may come; else the listed ones, or all but those.
bool isAdmitted(const std::string &mode, bool listed) {
    return mode == "Disabled" || (ConvMacACLModeToUI(mode.c_str()) == 1) == listed;
}

struct Filter {
    std::string mode;
    MacAccessList list{};
};

Filter filterOf(int ssid) {
    const std::string accessPoint = "Device.WiFi.AccessPoint." + std::to_string(ssid);
    const std::vector<Object> vendor =
        get({{accessPoint + ".X_LANTIQ_COM_Vendor", {{"MACAddressControlEnabled"}}}}, Reading::Leaf);
    Filter filter;
    filter.mode = vendor.empty() ? "" : valueOf(vendor.front(), "MACAddressControlEnabled");
    readEntries(accessPoint + ".X_ZINTU_MacFilter", filter.list);
    return filter;
}

} // namespace

Report mayJoin(int ssid, const std::string &mac) {
    const Filter filter = filterOf(ssid);
    const bool admitted = isAdmitted(filter.mode, isListed(filter.list, mac));
    return {.json = Value::object({{"ssid", ssid}, {"mode", filter.mode}, {"mac", mac}, {"admitted", admitted}}),
            .raw = mac + (admitted ? " may join\n" : " may not join\n")};
}

Report macFilter(int ssid) {
    const auto [mode, list] = filterOf(ssid);
    Report result{.json = Value::object({{"ssid", ssid}, {"mode", mode}, {"entries", Value::list()}})};
    result.table.rows.push_back({{"Filter"}, {readable(mode)}, {}});
    for (const MacAccessEntry &entry : entries(list)) {
        const Value json =
            Value::object({{"index", entry.index}, {"name", text(entry.name)}, {"mac", text(entry.macAddress)}});
        result.table.rows.push_back({{readable(json["index"])}, {text(entry.macAddress)}, {text(entry.name)}});
        result.json["entries"].push(json);
    }
    if (list.count == static_cast<int32_t>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: entries beyond the 32nd are left out");
    }
    return result;
}

} // namespace pages::wifi
