// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Stations = WifiTest;

std::string text(const WifiStaList &list) {
    std::string text;
    for (uint32_t i = 0; i < list.count; ++i) {
        const WifiStaEntry &entry = list.entries[i];
        text += std::string(entry.mac) + " " + std::to_string(entry.rssiAverage) + " (";
        for (const int rssi : entry.rssi) {
            text += std::to_string(rssi) + ",";
        }
        text += ") ";
    }
    return text;
}

constexpr char kFile[] = "/tmp/wlan_wave/sta_info_wlan0";

// What GetStaInfo() makes of the driver's lines.
std::string parse(const std::string &content, const char *filter = nullptr) {
    shell().onSystem = [&](const std::string &) {
        putFile(kFile, content);
        return 0;
    };
    static WifiStaList list;
    const int count = GetStaInfo("wlan0", filter, &list);
    EXPECT_EQ(count, list.count);
    return text(list);
}

// The same by the plain scan format.
std::string parseByScan(const std::string &content) {
    const auto list = std::make_unique<WifiStaList>();
    const std::vector<std::string> lines = linesOf(content, 128);
    for (size_t i = 0; i < lines.size(); ++i) {
        char value[128] = "";
        char description[128] = "";
        sscanf(lines[i].c_str(), "%s : %s", value, description);
        if (isValidMacAddress(value) == 0) {
            continue;
        }
        WifiStaEntry &entry = list->entries[list->count++];
        strncpy(entry.mac, value, 126);
        int sum = 0;
        int count = 0;
        for (int antenna = 0; antenna < 4 && i + 1 < lines.size(); ++antenna) {
            char word[128] = "";
            char kind[128] = "";
            sscanf(lines[++i].c_str(), "%s : %s", word, kind);
            if (strncmp(kind, "Short-term", 10) != 0) {
                break;
            }
            const int rssi = entry.rssi[antenna] = atoi(word);
            sum += rssi >= -127 && rssi < 0 ? rssi : 0;
            count += rssi >= -127 && rssi < 0 ? 1 : 0;
        }
        entry.rssiAverage = count > 0 ? sum / count : 0;
    }
    return text(*list);
}

TEST_F(Stations, LikeTheScanFormat) {
    const auto pieces = parts(
        "00:11:22:33:44:55 : STA MAC\n66-77-88-99-AA-BB\t:\tSTA MAC\n&66-77-88-99-AA-BB\t:\tSTA MAC\n&001122334455:&"
        "00:11:22:33:44:56&-40 : Short-term RSSI average per antenna\n&-51\v:\fShort-term\n&0 : Short-term\n"
        "-127 : Short-term\n-128 : Short-termed\n&-3:Short-term\n&-7 :Short-term\n&-8 : Short-ter\n&: Short-term\n& : &"
        "\r\n&" +
        std::string(100, '7') + "&" + std::string(60, ' '));
    std::mt19937 random(2); // NOLINT: the same files in every run
    for (int i = 0; i < 300; ++i) {
        const std::string content = randomText(random, std::string_view("12 \n\xff\x80\0", 7), pieces, random() % 200);
        ASSERT_EQ(parseByScan(content), parse(content)) << ::testing::PrintToString(content);
    }
}

TEST_F(Stations, FilterAndLimits) {
    const std::string antennas = "-41 : Short-term RSSI average\n-44 : Short-term RSSI average\n";
    const std::string first = "00:11:22:33:44:55 : STA MAC\n" + antennas;
    const std::string second = "66:77:88:99:aa:BB : STA MAC\n" + antennas;
    // The second station's line ends the first one and is lost, unless the first is not wanted.
    for (const char *filter : {static_cast<const char *>(nullptr), "no address", "00:11:22:33:44:55"}) {
        EXPECT_EQ("00:11:22:33:44:55 -42 (-41,-44,0,0,) ", parse(first + second, filter));
    }
    EXPECT_EQ("66:77:88:99:aa:BB -42 (-41,-44,0,0,) ", parse(first + second, "66:77:88:99:AA:bb"));
    EXPECT_EQ("", parse(first, "00:11:22:33:44:56"));
    const std::string longMac = "001122334455-" + std::string(114, 'x');
    EXPECT_EQ(longMac.substr(0, 126) + " 0 (0,0,0,0,) ", parse(longMac + "\n"));
    std::string many;
    for (int i = 0; i < 300; ++i) {
        many += first + "end\n";
    }
    EXPECT_EQ(128, std::ranges::count(parse(many), '('));
    EXPECT_EQ("cat /proc/net/mtlk/wlan0/PeerFlowStatus | grep 'STA MAC\\| Short-term RSSI average per antenna' > "
              "/tmp/wlan_wave/sta_info_wlan0",
              shell().commands.back());
}

TEST_F(Stations, Failures) {
    const auto list = std::make_unique<WifiStaList>();
    const std::string start = tag("GetStaInfo") + "START_FUNCTION \n";
    EXPECT_EQ(0, GetStaInfo("wlan9", nullptr, list.get()));
    EXPECT_EQ(start + tag("GetStaInfo") + "/tmp/wlan_wave/sta_info_wlan9 does not exist\n", console());
    shell().onSystem = [](const std::string &) { return 127; };
    EXPECT_EQ(0, GetStaInfo(std::string(150, 'x').c_str(), nullptr, list.get()));
    EXPECT_EQ(199U, shell().commands.back().size());
    EXPECT_EQ(start + tag("GetStaInfo") + "system is Failure\n", console());
    list->count = 3;
    EXPECT_EQ(3, GetStaInfo("", nullptr, list.get()));
    EXPECT_EQ(3, GetStaInfo(nullptr, nullptr, list.get()));
    EXPECT_EQ(0, GetStaInfo("wlan0", nullptr, nullptr));
    const std::string failure = start + "\n\n\t[GetStaInfo : 0] arg is Failure\n";
    EXPECT_EQ(failure + failure + failure, console());
}

// Answers for the eight SSIDs of a radio, from its first on: the SSID's parameters, and 1, 2, 4, ... clients or as many
// as are given.
void answer(int first, const std::string &ssids, const std::string &clients = "") {
    std::istringstream settings(ssids);
    for (int i = 0; i < 8; ++i) {
        std::string setting;
        std::getline(settings, setting, '|');
        const std::string number = std::to_string(first + i);
        platform().on(
            "Device.WiFi.AccessPoint." + number,
            {object("Device.WiFi.SSID." + number, parts(setting)),
             object("Device.WiFi.AccessPoint." + number,
                    {"AssociatedDeviceNumberOfEntries=" + (clients.empty() ? std::to_string(1 << i) : clients)})});
    }
}

TEST_F(Stations, Count) {
    const std::string on = "Enable=true&X_ZINTU_Active=1";
    // One that does not name its radio is judged as the one before it; the first is not counted.
    answer(9, on + "|" + on + "&LowerLayers=Device.WiFi.Radio.2.|" + on + "|X_ZINTU_Active=1|Enable=true|" + on +
                  "&LowerLayers=Device.WiFi.Radio.2|" + on +
                  "|Enable=1&X_ZINTU_Active=true&LowerLayers=Device.WiFi.Radio.2.");
    EXPECT_EQ(2 + 4 + 128, GetAssociatedDeviceNumberOfEntries(2));
    EXPECT_EQ(8, platform().releases());
    EXPECT_EQ("getValue 1/0x1100/2 Device.WiFi.SSID.16(Enable,X_ZINTU_Active,LowerLayers) "
              "Device.WiFi.AccessPoint.16(AssociatedDeviceNumberOfEntries)",
              platform().callTexts().back());
    const std::string start = tag("GetAssociatedDeviceNumberOfEntries") + "START_FUNCTION \n";
    EXPECT_EQ(start, console());

    // No sum overflows, whatever the layer answers.
    answer(9, "LowerLayers=Device.WiFi.Radio.2.&" + on + "|" + on, "2147483647");
    EXPECT_EQ(-2, GetAssociatedDeviceNumberOfEntries(2));
    console();

    // What was counted before a failure stays.
    answer(1, on + "&LowerLayers=Device.WiFi.Radio.1.||" + on + "|" + on);
    platform().failSend(3, -202);
    EXPECT_EQ(1, GetAssociatedDeviceNumberOfEntries(1));
    EXPECT_TRUE(console().ends_with(refused("GetAssociatedDeviceNumberOfEntries")));
    const size_t calls = platform().calls().size();
    EXPECT_EQ(0, GetAssociatedDeviceNumberOfEntries(3));
    EXPECT_EQ(start, console());
    EXPECT_EQ(calls, platform().calls().size());
}

TEST_F(Stations, MacAccess) {
    const std::string table = "Device.WiFi.AccessPoint.1.X_MacTable";
    const auto list = std::make_unique<MacAccessList>();
    std::vector<Object> entries = {object(table + ".12", {"name=TV", "macAddress=00:11:22:33:44:55", "Other=1"}),
                                   object(table + ".13", {"name=no address"}),
                                   object(table + ".14", {"Name=x", "macAddress=y"})};
    const std::string big = std::string(200, 'n');
    entries.push_back(object(table + ".%d%s.", {"name=" + big, "macAddress=" + big}));
    entries.push_back(object("short", {"name=", "macAddress="})); // empty is a value
    entries.resize(45, object(table + ".5", {"name=a", "macAddress=b"}));
    platform().on(table, entries);
    MsgHeader message = {};
    ASSERT_EQ(0, faltocal_send_main_multi_obj(&message, table.c_str(), "get", "get", 0));
    for (ObjectNode *node = nullptr; (node = caltofal_nextObject(&message, node)) != nullptr;) {
        EXPECT_EQ(-1, GetMacAccessList(node, table.c_str(), list.get()));
    }
    EXPECT_TRUE(console().starts_with(tag("GetMacAccessList") + "\n\n>>>>>>>>>> ssid " + table + ".12:12:" + table +
                                      ".:12<<<<<<<<<<<<<\n\n"));
    EXPECT_EQ(-1, GetMacAccessList(nullptr, "", list.get()));
    EXPECT_EQ(32, list->count);
    const auto expect = [&](int i, int index, const std::string &name, const std::string &mac) {
        EXPECT_EQ(index, list->entries[i].index);
        EXPECT_EQ(name, list->entries[i].name);
        EXPECT_EQ(mac, list->entries[i].macAddress);
    };
    expect(0, 12, "TV", "00:11:22:33:44:55");
    expect(1, 0, big.substr(0, 126), big.substr(0, 126));
    expect(2, 0, "", "");
    expect(31, 5, "a", "b");
    list->count = -1; // not an index
    EXPECT_EQ(-1, GetMacAccessList(caltofal_nextObject(&message, nullptr), table.c_str(), list.get()));
    EXPECT_EQ(-1, list->count);
    faltocal_finalize(&message);
}

} // namespace
