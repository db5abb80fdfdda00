// SPDX-License-Identifier: MIT
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"

#include <algorithm>
#include <memory>
#include <span>

namespace cli::wifi {
namespace {

struct Arguments {
    std::string ssid, mac;
};

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
Json isAdmitted(const std::string &mode, bool listed) {
    return mode == "Disabled" || (ConvMacACLModeToUI(mode.c_str()) == 1) == listed;
}

Report run(const Arguments &arguments) {
    const int ssid = checkedInstance(arguments.ssid, "SSID");
    const std::string mac = arguments.mac.empty() ? "" : checkedMac(arguments.mac);
    const std::string accessPoint = "Device.WiFi.AccessPoint." + std::to_string(ssid);
    const std::vector<Object> vendor =
        get({{accessPoint + ".X_LANTIQ_COM_Vendor", {{"MACAddressControlEnabled", {}}}}}, Reading::Leaf);
    const std::string mode = vendor.empty() ? "" : valueOf(vendor.front(), "MACAddressControlEnabled");
    MacAccessList list{};
    readEntries(accessPoint + ".X_ZINTU_MacFilter", list);

    Report result{{{"ssid", ssid}}, {}, {}, {}};
    put(result.json, "mode", mode);
    if (!mac.empty()) {
        const Json admitted = isAdmitted(mode, isListed(list, mac));
        result.json.update({{"mac", mac}, {"admitted", admitted}});
        result.raw = mac + (admitted == true ? " may join\n" : " may not join\n");
        return result;
    }
    result.json["entries"] = Json::array();
    result.table.rows.push_back({{"Filter"}, {mode.empty() ? "-" : mode}, {}});
    for (const MacAccessEntry &entry : entries(list)) {
        Json json = {{"index", entry.index}};
        put(json, "name", text(entry.name));
        put(json, "mac", text(entry.macAddress));
        result.table.rows.push_back({{readable(json["index"])}, {text(entry.macAddress)}, {text(entry.name)}});
        result.json["entries"].push_back(json);
    }
    if (list.count == static_cast<int32_t>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: entries beyond the 32nd are left out");
    }
    return result;
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArgument(command, "SSID", arguments->ssid, "An SSID's instance number");
    addOption(command, "--mac", arguments->mac, "MAC", "Only tell whether that station may join");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kAclVerb = {"acl", "The MAC filter of an SSID", "1\n9 --mac 00:00:5e:00:53:99", define};

} // namespace cli::wifi
