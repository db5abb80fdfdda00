// SPDX-License-Identifier: MIT
#include "channel_list.h"
#include "phy.h"
#include "wifi_support.h"

using namespace test;

namespace {

using Channels = WifiTest;

TEST_F(Channels, PhyNumber) {
    const std::pair<std::string, int> rows[] = {{"", -1},
                                                {"phy 1\n", -1},
                                                {"\twiphy 1\n", 1},
                                                {"\twiphy 12\n\twiphy 3\n", 12},
                                                {"wiphy", 0},
                                                {"wiphy12", 2},
                                                {"wiphy\n3", 3},
                                                {"wiphy x", 0},
                                                {std::string(1018, ' ') + "wiphy 7", 0},
                                                {"wiphy  -2", -2}};
    for (const auto &[output, number] : rows) {
        shell().onPopen = [&output = output](const std::string &) { return output; };
        EXPECT_EQ(number, GetPhyNumber("wlan0")) << output;
    }
    EXPECT_EQ("iw dev wlan0 info | grep \"wiphy\"", shell().commands.back());
    GetPhyNumber(std::string(200, 'x').c_str());
    EXPECT_EQ("iw dev " + std::string(120, 'x'), shell().commands.back());
    resetShell();
    shell().failPopen = true;
    EXPECT_EQ(-1, GetPhyNumber("wlan0"));
    shell().commands.clear();
    EXPECT_EQ(-1, GetPhyNumber(""));
    EXPECT_EQ(-1, GetPhyNumber(nullptr));
    EXPECT_TRUE(shell().commands.empty());
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

std::string parse(const std::string &line, wifi::ChannelRules rules) {
    WifiChannelList list = {};
    std::string copy = line;
    wifi::addChannelLine(copy.data(), rules, list);
    return text(list);
}

TEST_F(Channels, Lines) {
    constexpr wifi::ChannelRules kAll = {.radar = true, .only2_4GHz = false};
    const std::pair<std::string, std::string> rows[] = {
        {"52 5260 160 80 40+ 40- DFS", "52 5260 48 56 20,40,80,160,; "},
        {" 1\t2412  - - 40+ - -\n", "1 2412 0 5 20,40,; "},
        {"36 5180 160", "36 5180 0 0 20,160,; "},
        {"36 5180 160x 800 40+x 40-- DFS", "36 5180 0 0 20,; "}, // markers are exact
        {"36 5180 80 160 40- 40+ -", "36 5180 0 0 20,; "},       // and have their places
        {"36\n", ""},
        {"2147483647 5260 - - 40+ 40- -", "2147483647 5260 2147483643 -2147483645 20,40,; "},
    };
    for (const auto &[line, expected] : rows) {
        EXPECT_EQ(expected, parse(line, kAll)) << line;
    }
    const std::string radar = "52 5260 160 80 40+ 40- ";
    EXPECT_EQ("", parse(radar + "DFSx", {.radar = false, .only2_4GHz = false}));
    EXPECT_NE("", parse(radar + "DF", {.radar = false, .only2_4GHz = false}));
    EXPECT_NE("", parse("14 2484", {.radar = false, .only2_4GHz = true}));
    EXPECT_EQ("", parse("15 2485", {.radar = false, .only2_4GHz = true}));
}

TEST_F(Channels, List) {
    leaveNodes(); // the message of this request is not released
    const std::string listing = "1 2412 - - 40+ - -\n36 5180 - - - - -\n52 5260 - - - - DFS\n";
    struct Row {
        int radio;
        std::vector<std::string> settings;
        std::string phy, command, channels;
    };
    const Row rows[] = {
        {1, {"IEEE80211hEnabled=true"}, "wiphy 1", "iw phy phy1 show_channel", "1 2412 0 5 20,40,; "},
        {2,
         {"IEEE80211hEnabled=true"},
         "",
         "iw phy phy2 show_channel",
         "1 2412 0 5 20,40,; 36 5180 0 0 20,; 52 5260 0 0 20,; "},
        {2,
         {"IEEE80211hEnabled=true", "IEEE80211hEnabled=0"},
         "wiphy 3",
         "iw phy phy3 show_channel",
         "1 2412 0 5 20,40,; 36 5180 0 0 20,; "},
        {2, {}, "wiphy 3", "iw phy phy3 show_channel", "1 2412 0 5 20,40,; 36 5180 0 0 20,; "},
    };
    for (const Row &row : rows) {
        const std::string radio = "Device.WiFi.Radio." + std::to_string(row.radio);
        platform().on(radio, {object(radio, row.settings)});
        shell().onPopen = [&](const std::string &command) { return command.starts_with("iw dev") ? row.phy : listing; };
        WifiChannelList list;
        memset(&list, 0xff, sizeof(list));
        EXPECT_EQ(std::count(row.channels.begin(), row.channels.end(), ';'), GetChannelList("wlan2", row.radio, &list));
        EXPECT_EQ(row.channels, text(list));
        EXPECT_EQ(0, memcmp(&list.entries[list.count], std::string(sizeof(*list.entries), '\0').data(),
                            sizeof(*list.entries)));
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
    shell().onPopen = [](const std::string &) {
        std::string lines;
        for (int i = 0; i < 300; ++i) {
            lines += "1 2412\n";
        }
        return lines;
    };
    EXPECT_EQ(100, GetChannelList("wlan0", 1, &list));
}

TEST_F(Channels, Current) {
    int channel = -7;
    shell().onPopen = [](const std::string &) { return "wlan0  11 channels\n"; };
    EXPECT_EQ(1, GetCurrentChannel("wlan0", 0, &channel));
    EXPECT_EQ(-7, channel);
    EXPECT_EQ("iwlist wlan0 channel", shell().commands.back());
    EXPECT_EQ(tag("GetCurrentChannel") + "START_FUNCTION \n", console());
    shell().onPopen = [](const std::string &) {
        return "  Current Channel=3\n  Current Channel= 44 (x)\nCurrent Channel:5\n";
    };
    EXPECT_EQ(1, GetCurrentChannel("wlan0", 0, &channel));
    EXPECT_EQ(44, channel);
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
