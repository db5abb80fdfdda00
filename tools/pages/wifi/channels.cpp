// SPDX-License-Identifier: MIT
// `wifi channels` and `wifi channel`: what the driver's tools tell about a radio.
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/radar.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <span>

namespace cli::wifi {
namespace {

Json jsonOf(const WifiChannelEntry &entry) {
    Json widths = Json::array();
    for (const int32_t width : entry.bandwidths) {
        if (width != 0) {
            widths.push_back(width);
        }
    }
    const auto secondary = [](int32_t channel) { return channel == 0 ? Json() : Json(channel); };
    return {{"channel", entry.channel},
            {"frequency_mhz", entry.frequency},
            {"bandwidths_mhz", widths},
            {"secondary_below", secondary(entry.belowChannel)},
            {"secondary_above", secondary(entry.aboveChannel)},
            {"dfs", isRadarChannel(entry.channel)}};
}

std::vector<Cell> rowOf(const Json &entry) {
    const auto cell = [&](const char *key) { return Cell{readable(entry[key])}; };
    return {{markedChannel(entry["channel"])},
            cell("frequency_mhz"),
            cell("bandwidths_mhz"),
            cell("secondary_below"),
            cell("secondary_above")};
}

Report runChannels(const std::string &name) {
    checkedInterface(name);
    needDevice();
    const Interface interface = findInterface(name);
    WifiChannelList list{};
    ShellOutput output;
    const int phy = GetPhyNumber(name.c_str());
    const int count = askEvery([&] { return GetChannelList(name.c_str(), interface.radio, &list); });
    const std::string complaint = output.end();
    if (count == 0) {
        failOfShell("iw lists no channels for " + name, complaint);
    }
    Report result{{{"interface", name},
                   {"radio", interface.radio},
                   {"phy", phy < 0 ? Json() : Json(phy)},
                   {"channels", Json::array()}},
                  {},
                  {},
                  {}};
    result.table.headings = {"CHANNEL", "FREQUENCY", "BANDWIDTHS", "2ND LOWER", "2ND UPPER"};
    const std::span entries(list.entries, static_cast<size_t>(count));
    for (const WifiChannelEntry &entry : entries) {
        result.json["channels"].push_back(jsonOf(entry));
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto &a, const auto &b) { return a.channel < b.channel; });
    for (const WifiChannelEntry &entry : entries) {
        result.table.rows.push_back(rowOf(jsonOf(entry)));
    }
    if (count == static_cast<int>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: channels beyond the 100th are left out");
    }
    return result;
}

struct Current {
    int channel = kUntouched;
    std::string country, extension;
};

// The side of the secondary channel, for channels at 2.4 GHz: upper, lower or auto, as a survey names it.
Json sideOf(const Current &current, const std::string &band) {
    if (current.channel == kUntouched || band != "2.4GHz") {
        return {};
    }
    const char *side = GetSideChannel(current.channel, current.country.c_str(), current.extension.c_str());
    return FapiToUi_Str(side, SideBand_FapiToUi_Table, std::size(SideBand_FapiToUi_Table));
}

Report runChannel(const std::string &name) {
    checkedInterface(name);
    needDevice();
    const Interface interface = findInterface(name);
    const std::string radioPath = "Device.WiFi.Radio." + std::to_string(interface.radio);
    const Object radio = get({{radioPath,
                               {{"RegulatoryDomain", {}},
                                {"ExtensionChannel", {}},
                                {"OperatingFrequencyBand", {}},
                                {"AutoChannelEnable", {}}}}},
                             Reading::Leaf)
                             .front();
    Current current{kUntouched, valueOf(radio, "RegulatoryDomain"), valueOf(radio, "ExtensionChannel")};
    ShellOutput output;
    const bool ran = GetCurrentChannel(name.c_str(), 0, &current.channel) == 1;
    const std::string complaint = output.end();
    if (!ran || (current.channel == kUntouched && !complaint.empty())) {
        failOfShell("iwlist tells no channel of " + name, complaint);
    }
    Page page{
        {{"",
          "",
          {
              {"interface", "Interface", name, {}},
              {"radio", "Radio", interface.radio, {}},
              {"channel", "Channel", number(current.channel), {}},
              {"auto_channel", "Chosen automatically", valueOf(radio, "AutoChannelEnable") == "true", {}},
              {"secondary_side", "Secondary channel", sideOf(current, valueOf(radio, "OperatingFrequencyBand")), {}},
              {"dfs_channel", "DFS channel", GetDFSChannel() == 0 ? Json() : Json(GetDFSChannel()), {}},
          }}},
        {}};
    if (current.channel == kUntouched) {
        page.notes.push_back("iwlist names no current channel: the radio of " + name + " is off");
    }
    return report(page);
}

template <Report (*run)(const std::string &)>
Run defineQuery(CLI::App &command) {
    const auto name = std::make_shared<std::string>();
    addArgument(command, "INTERFACE", *name, "A wireless interface, such as wlan0");
    return [name] { return run(*name); };
}

} // namespace

const Noun kChannelsVerb = {"channels", "The channels that an interface's radio may use", "wlan0\nwlan2 --json",
                            defineQuery<runChannels>};

const Noun kChannelVerb = {"channel", "The channel in use", "wlan0", defineQuery<runChannel>};

} // namespace cli::wifi
