// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using EndPoint = WifiTest;

constexpr char kFirst[] = "Device.WiFi.EndPoint.1";
constexpr char kSecond[] = "Device.WiFi.EndPoint.2";
constexpr char kSsid[] = "Device.WiFi.SSID.17.";

void answer(const std::vector<Object> &endPoints) {
    platform().on(kSecond, endPoints);
}

TEST_F(EndPoint, Enable) {
    struct Row {
        std::vector<Object> endPoints;
        int result;
        const char *ifname;
    };
    const std::string reference = std::string("SSIDReference=") + kSsid;
    const Row rows[] = {
        {{object(kFirst, {"Enable=true", reference}), object(kSecond, {"Enable=true", "SSIDReference=other"})},
         1,
         "wlan1"},
        {{object(kSecond, {reference, "Enable=true"}), object(kFirst, {"Enable=True"})}, 2, "wlan1"},
        {{object(kFirst, {"Enable=1", reference}), object(kSecond, {"Enable=false", reference})}, -1, "before"},
        {{object("Device.WiFi.EndPoint.10", {"Enable=true", reference})}, 1, "wlan1"}, // begins like instance 1
        {{object(kFirst, {"Enable=true"})}, 1, "before"},                              // no reference: nothing asked
        {{object(kFirst, {"Enable=true", "SSIDReference=" + std::string(300, 'r')})}, 1, "before"}, // refused
        {{}, -1, "before"},
    };
    for (const Row &row : rows) {
        answer(row.endPoints);
        answer(row.endPoints);
        platform().on(kSsid, {object(kSsid, {"Name=wlan1"})});
        char ifname[128] = "before";
        EXPECT_EQ(row.result, GetEPEnable(ifname));
        EXPECT_STREQ(row.ifname, ifname);
        const size_t calls = platform().calls().size();
        EXPECT_EQ(row.result, GetEPEnable(nullptr)); // asks for no name
        EXPECT_EQ(calls + 1, platform().calls().size());
    }
    EXPECT_EQ("getValue 1/0x1100/2 Device.WiFi.EndPoint.1(Enable,SSIDReference) "
              "Device.WiFi.EndPoint.2(Enable,SSIDReference)",
              platform().callTexts()[0]);
    EXPECT_EQ(std::string("getValue 1/0x1100/2 ") + kSsid + "(Name)", platform().callTexts()[1]);
    EXPECT_TRUE(console().ends_with(refused("GetEPEnable")));
}

TEST_F(EndPoint, NamesAndRefusal) {
    for (const auto &[param, name] :
         {std::pair{"Name=" + std::string(200, 'n'), std::string(126, 'n')}, {"Alias=x", ""}}) {
        answer({object(kFirst, {"Enable=true", std::string("SSIDReference=") + kSsid})});
        platform().on(kSsid, {object(kSsid, {param})});
        char ifname[128] = "before";
        EXPECT_EQ(1, GetEPEnable(ifname));
        EXPECT_EQ(name, ifname);
    }
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(0, GetEPEnable(nullptr));
    EXPECT_TRUE(console().ends_with(refused("GetEPEnable")));
    EXPECT_EQ(5, platform().releases());
}

// Makes the next command leave this in the peer file of wlan1.
void leave(const std::string &content) {
    shell().onSystem = [content](const std::string &) {
        putFile("/tmp/wlan_wave/wlan1_peer_info", content);
        return 0;
    };
}

TEST_F(EndPoint, Connection) {
    const std::pair<std::string, int> rows[] = {{"00:11:22:33:44:55\n66:77:88:99:aa:bb\n", 1},
                                                {"00:11:22:33:44:55", 1},
                                                {"", 0},
                                                {"\n00:11:22:33:44:55\n", 0},
                                                {"00:11:22:33:44:55\r\n", 0},
                                                {"none\n", 0}};
    for (const auto &[content, result] : rows) {
        leave(content);
        char mac[128] = "before";
        EXPECT_EQ(result, GetEPContection("wlan1", mac)) << content;
        EXPECT_STREQ(result ? "00:11:22:33:44:55" : "before", mac);
        EXPECT_EQ(result, GetEPContection("wlan1", nullptr));
    }
    EXPECT_EQ("cat /proc/net/mtlk/wlan1/PeerFlowStatus | grep \"STA MAC\" | sed -e 's/: STA MAC//' -e 's/\\t//' "
              "-e 's/ //g' > /tmp/wlan_wave/wlan1_peer_info",
              shell().commands.back());
    EXPECT_EQ("", takeConsole());
    removeFile("/tmp/wlan_wave/wlan1_peer_info");
    resetShell();
    EXPECT_EQ(0, GetEPContection("wlan1", nullptr));
    EXPECT_EQ(tag("GetEPContection") + "/tmp/wlan_wave/%s_peer_info does not exist\n", console());
    shell().onSystem = [](const std::string &) { return -1; };
    EXPECT_EQ(0, GetEPContection("wlan1", nullptr));
    EXPECT_EQ(tag("GetEPContection") + shell().commands.back() + " system command fail\n", console());
    EXPECT_EQ(0, GetEPContection(nullptr, nullptr));
}

TEST_F(EndPoint, ConnectionStatus) {
    leave("00:11:22:33:44:55\n");
    answer({object(kFirst, {"Enable=true", std::string("SSIDReference=") + kSsid})});
    platform().on(kSsid, {object(kSsid, {"Name=wlan1"})});
    char mac[128] = "";
    EXPECT_EQ(1, GetEPConnectionStatus(mac));
    EXPECT_STREQ("00:11:22:33:44:55", mac);
    answer({});
    const size_t commands = shell().commands.size();
    EXPECT_EQ(0, GetEPConnectionStatus(mac)); // none enabled: nothing is run
    EXPECT_EQ(commands, shell().commands.size());
    EXPECT_EQ(0, GetEPConnectionStatus(mac)); // refused: the check runs without a name
    EXPECT_TRUE(shell().commands.back().starts_with("cat /proc/net/mtlk//PeerFlowStatus"));
    EXPECT_TRUE(shell().commands.back().ends_with("> /tmp/wlan_wave/_peer_info"));
}

TEST_F(EndPoint, ChannelInfo) {
    struct Row {
        const char *content;
        int result;
        int32_t values[3];
    };
    for (const Row &row : {Row{"80\n36\n", 1, {80, 36, -7}}, Row{"80\n\n36\n", 0, {80, -7, -7}},
                           Row{"\n80\n", 0, {-7, -7, -7}}, Row{"", 0, {-7, -7, -7}}, Row{"20\n6", 1, {20, 6, -7}}}) {
        leave(row.content);
        int32_t values[3] = {-7, -7, -7};
        EXPECT_EQ(row.result, ReqEPChannelInfo("wlan1", values)) << row.content;
        EXPECT_EQ(0, memcmp(row.values, values, sizeof(values))) << row.content;
        EXPECT_EQ(0, ReqEPChannelInfo("wlan1", nullptr));
    }
    EXPECT_EQ("cat /proc/net/mtlk/wlan1/channel | grep -e width: -e primary_channel: | sed 's/[^0-9]*//g' > "
              "/tmp/wlan_wave/wlan1_peer_info",
              shell().commands.back());
    removeFile("/tmp/wlan_wave/wlan1_peer_info");
    resetShell();
    takeConsole();
    EXPECT_EQ(0, ReqEPChannelInfo("wlan1", nullptr));
    EXPECT_EQ(tag("ReqEPChannelInfo") + "/tmp/wlan_wave/%s_scan_by_User.result does not exist\n", console());
    shell().onSystem = [](const std::string &) { return 127; };
    EXPECT_EQ(0, ReqEPChannelInfo("wlan1", nullptr));
    EXPECT_EQ(tag("ReqEPChannelInfo") + shell().commands.back() + " system command fail\n", console());
    EXPECT_EQ(0, ReqEPChannelInfo(nullptr, nullptr));
    ReqEPChannelInfo(std::string(200, 'x').c_str(), nullptr);
    EXPECT_EQ(255U, shell().commands.back().size());
}

} // namespace
