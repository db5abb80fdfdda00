// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <sstream>

namespace pages::wifi {
namespace {

struct Answer {
    MsgHeader header{};
    Answer() = default;
    Answer(const Answer &) = delete;
    Answer &operator=(const Answer &) = delete;
    ~Answer() { faltocal_finalize(&header); }
};

// The filter of an access point. The gateway's maker has it in objects of its own; the standard has one that admits the
// listed stations only.
struct Filter {
    std::string mode; // "" where the gateway does not say
    Value entries = Value::list();
    bool full = false;
};

void addEntry(Filter &filter, const Value &index, const std::string &name, const std::string &mac) {
    filter.entries.push(Value::object({{"index", index}, {"name", name}, {"mac", mac}}));
}

void readEntries(const std::string &table, Filter &filter) {
    MacAccessList list{};
    Answer answer;
    ask([&] { return faltocal_send_main_multi_obj(&answer.header, table.c_str(), "get", "get", 0); },
        {table + ": no MAC filter"});
    for (ObjectNode *object = caltofal_nextObject(&answer.header, nullptr); object;
         object = caltofal_nextObject(&answer.header, object)) {
        GetMacAccessList(object, table.c_str(), &list);
    }
    for (const MacAccessEntry &entry : std::span(list.entries, static_cast<size_t>(list.count))) {
        addEntry(filter, entry.index, text(entry.name), text(entry.macAddress));
    }
    filter.full = list.count == static_cast<int32_t>(std::size(list.entries));
}

void readMode(const std::string &accessPoint, Filter &filter) {
    const std::vector<Object> vendor =
        get({{accessPoint + ".X_LANTIQ_COM_Vendor", {{"MACAddressControlEnabled"}}}}, Reading::Leaf);
    filter.mode = vendor.empty() ? "" : valueOf(vendor.front(), "MACAddressControlEnabled");
}

void readStandard(const std::string &accessPoint, Filter &filter) {
    const std::vector<Object> found =
        get({{accessPoint, {{"MACAddressControlEnabled"}, {"AllowedMACAddress"}}}}, Reading::Leaf);
    if (found.empty() || found.front().parameters.empty()) {
        throw Failure(Category::Absent, accessPoint + " has no MAC filter", accessPoint);
    }
    const Value on = flagOf(valueOf(found.front(), "MACAddressControlEnabled"));
    filter.mode = on.isNull() ? "" : on.flag() ? "Allow" : "Disabled";
    std::istringstream list(valueOf(found.front(), "AllowedMACAddress"));
    int32_t index = 0;
    for (std::string mac; std::getline(list >> std::ws, mac, ',');) {
        addEntry(filter, ++index, "", mac.substr(0, mac.find_last_not_of(" \t\r\n") + 1));
    }
}

// Whether the gateway has what `read` asks for.
bool succeeds(void (*read)(const std::string &path, Filter &filter), const std::string &path, Filter &filter) {
    try {
        read(path, filter);
        return true;
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        return false;
    }
}

std::string accessPointPath(int number) {
    return "Device.WiFi.AccessPoint." + std::to_string(number);
}

Filter filterOf(int ssid) {
    Filter filter;
    std::string accessPoint = accessPointPath(ssid);
    bool mode = succeeds(readMode, accessPoint, filter);
    if (!mode) {
        requireSsid(ssid);
        const int number = accessPointOf(ssid);
        if (number == 0) {
            throw Failure(Category::Absent, "SSID " + std::to_string(ssid) + " has no access point: no MAC filter",
                          "Device.WiFi.AccessPoint");
        }
        accessPoint = accessPointPath(number);
        mode = number != ssid && succeeds(readMode, accessPoint, filter);
    }
    if (!succeeds(readEntries, accessPoint + ".X_ZINTU_MacFilter", filter) && !mode) {
        readStandard(accessPoint, filter);
    }
    return filter;
}

bool isListed(const Filter &filter, const std::string &mac) {
    return std::any_of(filter.entries.items().begin(), filter.entries.items().end(),
                       [&](const Value &entry) { return isSameMac(entry["mac"].text(), mac); });
}

// With the filter off everybody may come; else the listed ones, or all but those.
bool isAdmitted(const std::string &mode, bool listed) {
    return mode == "Disabled" || (ConvMacACLModeToUI(mode.c_str()) == 1) == listed;
}

} // namespace

Report mayJoin(int ssid, const std::string &mac) {
    const Filter filter = filterOf(ssid);
    if (filter.mode.empty()) {
        throw Failure(Category::Absent, "SSID " + std::to_string(ssid) +
                                            ": the gateway does not say whether its MAC filter allows or denies");
    }
    const bool admitted = isAdmitted(filter.mode, isListed(filter, mac));
    Report result = pageOf({{"ssid", "SSID", ssid},
                            {"mode", "Filter", filter.mode},
                            {"mac", "MAC address", mac},
                            {"admitted", "May join", admitted}});
    result.raw = mac + (admitted ? " may join\n" : " may not join\n");
    return result;
}

Report macFilter(int ssid) {
    const Filter filter = filterOf(ssid);
    Report result{.json = Value::object({{"ssid", ssid}, {"mode", filter.mode}, {"entries", filter.entries}})};
    result.table.rows.push_back({{"Filter"}, {readable(filter.mode)}, {}});
    result.table.forScripts = {{{"ssid"}, cellOf(ssid)}, {{"mode"}, cellOf(filter.mode)}};
    int number = 0;
    for (const Value &entry : filter.entries.items()) {
        addFacts(result.table, "entry." + std::to_string(++number), entry);
        result.table.rows.push_back({{readable(entry["index"])}, {entry["mac"].text()}, {entry["name"].text()}});
    }
    if (filter.full) {
        result.notes.emplace_back("the list is full: entries beyond the 32nd are left out");
    }
    return result;
}

} // namespace pages::wifi
