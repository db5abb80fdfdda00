// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Channels = WifiTest;

TEST_F(Channels, PhyNumber) {
    const auto phyOf = [](const std::string &output) {
        shell().onPopen = [=](const std::string &) { return output; };
        return std::to_string(GetPhyNumber("wlan0"));
    };
    expectEach("=-1&phy 1\n=-1&\twiphy 1\n=1&\twiphy 12\n\twiphy 3\n=12&wiphy=0&wiphy12=2&wiphy\n3=3&wiphy x=0&"
               "wiphy  -2=-2",
               phyOf);
    EXPECT_EQ("0", phyOf(std::string(1018, ' ') + "wiphy 7")); // cut
    EXPECT_EQ("iw dev wlan0 info | grep \"wiphy\"", shell().commands.back());
    GetPhyNumber(std::string(200, 'x').c_str());
    EXPECT_EQ("iw dev " + std::string(120, 'x'), shell().commands.back());
    const size_t commands = shell().commands.size();
    EXPECT_EQ(-1, GetPhyNumber(""));
    EXPECT_EQ(-1, GetPhyNumber(nullptr));
    EXPECT_EQ(commands, shell().commands.size());
    shell().failPopen = true;
    EXPECT_EQ(-1, GetPhyNumber("wlan0"));
}

// channel frequency below above bandwidths..., one entry after another
std::string text(const WifiChannelList &list) {
    std::string text;
    for (uint32_t i = 0; i < list.count; ++i) {
        const WifiChannelEntry &entry = list.entries[i];
        for (const int number : {entry.channel, entry.frequency, entry.belowChannel, entry.aboveChannel}) {
            text += std::to_string(number) + " ";
        }
        for (const int bandwidth : entry.bandwidths) {
            text += bandwidth != 0 ? std::to_string(bandwidth) + "," : "";
        }
        EXPECT_EQ(0, entry.reserved);
        text += "; ";
    }
    return text;
}

TEST_F(Channels, List) {
    leaveNodes(); // the message of this request is not released
    const char *on = "IEEE80211hEnabled=true";
    const std::string low = "1 2412 0 5 20,40,; 14 2484 0 0 20,; ";
    const std::string high = "15 2485 0 0 20,; 36 5180 0 0 20,; 52 5260 48 56 20,40,80,160,; ";
    const std::string radar = "60 5300 56 64 20,40,80,160,; 64 5320 0 0 20,; ";
    const std::string listing = "\n36\n 1\t2412  - - 40+ - -\n14 2484 160x 800 40+x 40-- -\n15 2485\n"
                                "36 5180 80 160 40- 40+ DF\n52 5260 160 80 40+ 40- -\n60 5300 160 80 40+ 40- DFS\n"
                                "64 5320 - - - - DFSx";
    struct Row {
        int radio;
        std::vector<std::string> settings;
        std::string phy, command, channels;
    };
    for (const Row &row : {Row{1, {on}, "wiphy 1", "iw phy phy1 show_channel", low},
                           Row{2, {on}, "", "iw phy phy2 show_channel", low + high + radar},
                           Row{2, {on, "IEEE80211hEnabled=0"}, "wiphy 3", "iw phy phy3 show_channel", low + high},
                           Row{3, {}, "wiphy 0", "iw phy phy0 show_channel", low + high}}) {
        const std::string radio = "Device.WiFi.Radio." + std::to_string(row.radio);
        platform().on(radio, {object(radio, row.settings)});
        shell().onPopen = [&](const std::string &command) { return command.starts_with("iw dev") ? row.phy : listing; };
        WifiChannelList list;
        memset(&list, 0xff, sizeof(list));
        EXPECT_EQ(std::ranges::count(row.channels, ';'), GetChannelList("wlan2", row.radio, &list));
        EXPECT_EQ(row.channels, text(list));
        EXPECT_EQ(0, list.entries[list.count].channel | list.entries[99].reserved);
        EXPECT_EQ("getValue 1/0x1100/2 " + radio + "(IEEE80211hEnabled)", platform().callTexts().back());
        EXPECT_EQ(row.command, shell().commands.back());
        EXPECT_EQ(tag("GetChannelList") +
                      (row.phy.empty() ? "GetPhyNumber Fail!!!\n" : "GetPhyNumber " + row.command + "\n"),
                  console());
    }
    EXPECT_EQ(0, platform().releases());
}

TEST_F(Channels, ListLimitsAndFailures) {
    leaveNodes();
    WifiChannelList list = {.count = 7, .entries = {}};
    EXPECT_EQ(0, GetChannelList("wlan0", 1, &list)); // no such radio
    EXPECT_EQ(0U, list.count);
    EXPECT_TRUE(console().ends_with(refused("GetChannelList")));
    EXPECT_TRUE(shell().commands.empty());
    platform().otherwise({0, {}});
    shell().failPopen = true;
    EXPECT_EQ(0, GetChannelList("wlan0", 1, &list));
    EXPECT_EQ(tag("GetChannelList") + "GetPhyNumber Fail!!!\n" + tag("GetChannelList") + "popen()", console());
    shell().failPopen = false;
    std::string lines;
    for (int i = 0; i < 300; ++i) {
        lines += "2147483647 2412 - - 40+ 40- -\n";
    }
    shell().onPopen = [&](const std::string &) { return lines; };
    EXPECT_EQ(100, GetChannelList("wlan0", 1, &list));
    EXPECT_TRUE(text(list).starts_with("2147483647 2412 2147483643 -2147483645 20,40,; "));
}

TEST_F(Channels, Current) {
    int channel = -7;
    const std::string lines = "  Current Channel=3\n  Current Channel= 44 (x)\nCurrent Channel:5\n";
    for (const auto &[output, number] : {std::pair<std::string, int>{"wlan0  11 channels\n", -7}, {lines, 44}}) {
        shell().onPopen = [output = output](const std::string &) { return output; };
        EXPECT_EQ(1, GetCurrentChannel("wlan0", 0, &channel));
        EXPECT_EQ(number, channel);
        EXPECT_EQ(tag("GetCurrentChannel") + "START_FUNCTION \n", console());
    }
    EXPECT_EQ("iwlist wlan0 channel", shell().commands.back());
    shell().failPopen = true;
    EXPECT_EQ(0, GetCurrentChannel("wlan0", 0, &channel));
    EXPECT_TRUE(console().ends_with(tag("GetCurrentChannel") + "popen()"));
}

TEST_F(Channels, Side) {
    for (const auto &[country, limit] : {std::pair{"US", 7}, {"USI", 7}, {"JP ", 10}, {"us", 9}, {"KR", 9}, {"", 9}}) {
        EXPECT_STREQ("AboveControlChannel", GetSideChannel(4, country, "both"));
        EXPECT_STREQ("both", GetSideChannel(5, country, "both"));
        EXPECT_STREQ("both", GetSideChannel(limit, country, "both"));
        EXPECT_STREQ("BelowControlChannel", GetSideChannel(limit + 1, country, "both"));
    }
    EXPECT_EQ(0, GetDFSChannel());
}

} // namespace
