// SPDX-License-Identifier: MIT
// `wifi channels` and `wifi channel`: what the driver's tools tell about a radio.
#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/layer/left_messages.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/chart.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/radar.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace pages::wifi {
namespace {

Value jsonOf(const WifiChannelEntry &entry) {
    Value widths = Value::list();
    for (const int32_t width : entry.bandwidths) {
        if (width != 0) {
            widths.push(width);
        }
    }
    const auto secondary = [](int32_t channel) { return channel == 0 ? Value() : Value(channel); };
    return Value::object({{"channel", entry.channel},
                          {"frequency_mhz", entry.frequency},
                          {"bandwidths_mhz", widths},
                          {"secondary_below", secondary(entry.belowChannel)},
                          {"secondary_above", secondary(entry.aboveChannel)},
                          {"dfs", isRadarChannel(entry.channel)}});
}

Row rowOf(const Value &entry, int channel) {
    Row row = pages::rowOf(entry, {"channel", "frequency_mhz", "bandwidths_mhz", "secondary_below", "secondary_above"});
    row.front() = markedChannel(channel);
    row.push_back(cellOf(entry["dfs"]));
    return row;
}

struct Current {
    int channel = kUntouched;
    std::string country, extension, width;
};

// The side of the secondary channel, as a survey names it: upper, lower or auto. At 20 MHz there is none. At 5 GHz the
// number of the channel tells, at 2.4 GHz the library, by the country and the setting. Null where what it hangs on is
// not known.
Value sideOf(const Current &current) {
    if (current.channel <= 0 || current.width.empty() || current.width == "20MHz") {
        return {};
    }
    if (current.channel > kLast24GHz) {
        const ChannelSpan pair = spanOf({.channel = current.channel, .width = 40});
        return pair.first == current.channel ? "upper" : "lower";
    }
    const std::string side = GetSideChannel(current.channel, current.country.c_str(), current.extension.c_str());
    return side.empty() ? Value()
                        : FapiToUi_Str(side.c_str(), SideBand_FapiToUi_Table, std::size(SideBand_FapiToUi_Table));
}

// The library's answer is always 0.
Value radarChannelOf(const Current &current) {
    const int told = GetDFSChannel();
    return told != 0 ? Value(told) : isRadarChannel(current.channel) ? Value(current.channel) : Value();
}

} // namespace

Report channels(const InterfaceName &name) {
    const Interface interface = findInterface(name);
    WifiChannelList list{};
    ShellOutput output;
    const int phy = GetPhyNumber(name.c_str());
    const LeftMessages left;
    const int count = askEvery([&] { return GetChannelList(name.c_str(), interface.radio, &list); });
    const std::string complaint = output.end();
    if (count == 0) {
        failOfShell("iw lists no channels for " + name.text(), complaint);
    }
    Report result{.json = Value::object({{"interface", name.text()},
                                         {"radio", interface.radio},
                                         {"phy", phy < 0 ? Value() : Value(phy)},
                                         {"channels", Value::list()}})};
    result.table.headings = {"CHANNEL", "FREQUENCY MHZ", "WIDTHS MHZ", "2ND LOWER", "2ND UPPER"};
    result.table.furtherHeadings = {"DFS"};
    const std::span entries(list.entries, static_cast<size_t>(count));
    for (const WifiChannelEntry &entry : entries) {
        result.json["channels"].push(jsonOf(entry));
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto &a, const auto &b) { return a.channel < b.channel; });
    for (const WifiChannelEntry &entry : entries) {
        result.table.rows.push_back(rowOf(jsonOf(entry), entry.channel));
    }
    if (count == static_cast<int>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: channels beyond the 100th are left out");
    }
    return result;
}

Report currentChannel(const InterfaceName &name) {
    const Interface interface = findInterface(name);
    const std::string radioPath = "Device.WiFi.Radio." + std::to_string(interface.radio);
    const std::vector<Parameter> wanted = {
        {"RegulatoryDomain"}, {"ExtensionChannel"}, {"OperatingChannelBandwidth"}, {"AutoChannelEnable"}};
    const std::vector<Object> found = get({{radioPath, wanted}}, Reading::Leaf);
    const Object radio = found.empty() ? Object() : found.front();
    Current current{kUntouched, valueOf(radio, "RegulatoryDomain"), valueOf(radio, "ExtensionChannel"),
                    valueOf(radio, "OperatingChannelBandwidth")};
    ShellOutput output;
    const bool ran = GetCurrentChannel(name.c_str(), 0, &current.channel) == 1;
    const std::string complaint = output.end();
    if (!ran || (current.channel == kUntouched && !complaint.empty())) {
        failOfShell("iwlist tells no channel of " + name.text(), complaint);
    }
    Page page = pageOf({
        {"interface", "Interface", name.text()},
        {"radio", "Radio", interface.radio},
        {"channel", "Channel", current.channel > 0 ? Value(current.channel) : Value()},
        {"auto_channel", "Chosen automatically", flagOf(valueOf(radio, "AutoChannelEnable"))},
        {"secondary_side", "Secondary channel", sideOf(current)},
        {"dfs_channel", "DFS channel", radarChannelOf(current)},
    });
    if (current.channel == kUntouched) {
        page.notes.push_back("iwlist names no current channel: the radio of " + name.text() + " is off");
    }
    return page;
}

} // namespace pages::wifi
