// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using EndPoint = WifiTest;

// What the layer answers: "INSTANCE&param=value..." for each endpoint, and the name of the SSID behind the reference.
void answer(const std::vector<std::string> &endPoints, const std::string &name = "Name=wlan1") {
    std::vector<Object> objects;
    for (const std::string &endPoint : endPoints) {
        auto params = parts(endPoint);
        objects.push_back(object("Device.WiFi.EndPoint." + params[0], {params.begin() + 1, params.end()}));
    }
    platform().on("Device.WiFi.EndPoint.2", objects);
    platform().on("SSID.17.", {object("Device.WiFi.SSID.17", {name})});
    platform().on("", {object("Device.WiFi.SSID.1", {"Name=wlan0"})});
}

TEST_F(EndPoint, Enable) {
    struct Row {
        std::vector<std::string> endPoints;
        int result;
        std::string ifname, name = "Name=wlan1";
    };
    const std::string reference = "&SSIDReference=SSID.17.";
    for (const Row &row :
         {Row{{"1&Enable=true" + reference, "2&Enable=true&SSIDReference=other"}, 1, "wlan1"},
          Row{{"2" + reference + "&Enable=true", "1&Enable=True"}, 2, "wlan1"},
          Row{{"1&Enable=1" + reference, "2&Enable=false" + reference}, -1, "before"},
          Row{{"10&Enable=true" + reference}, 1, "wlan1"}, // begins like instance 1
          Row{{"1&Enable=true"}, 1, "wlan0"},              // no reference: asked for all the same
          Row{{"1&Enable=true&SSIDReference=" + std::string(300, 'r')}, 1, "before"}, // refused
          Row{{}, -1, "before"},
          Row{{"1&Enable=true" + reference}, 1, std::string(126, 'n'), "Name=" + std::string(200, 'n')},
          Row{{"1&Enable=true" + reference}, 1, "", "Alias=x"}}) {
        answer(row.endPoints, row.name);
        char ifname[128] = "before";
        EXPECT_EQ(row.result, GetEPEnable(ifname));
        EXPECT_EQ(row.ifname, ifname);
        const size_t calls = platform().calls().size();
        answer(row.endPoints);
        EXPECT_EQ(row.result, GetEPEnable(nullptr)); // asks for no name
        EXPECT_EQ(calls + 1, platform().calls().size());
        EXPECT_EQ(static_cast<int>(calls + 1), platform().releases());
        resetPlatform();
    }
    for (const auto &[asked, params] : {std::pair<std::string, std::string>{"SSID.17.", reference}, {"", ""}}) {
        answer({"1&Enable=true" + params});
        char ifname[128];
        GetEPEnable(ifname);
        EXPECT_EQ(parts("getValue 1/0x1100/2 Device.WiFi.EndPoint.1(Enable,SSIDReference) "
                        "Device.WiFi.EndPoint.2(Enable,SSIDReference)&getValue 1/0x1100/2 " +
                        asked + "(Name)"),
                  platform().callTexts());
        resetPlatform();
    }
    takeConsole();
    EXPECT_EQ(0, GetEPEnable(nullptr));
    EXPECT_TRUE(console().ends_with(refused("GetEPEnable")));
}

// Makes the next commands leave this in the peer file of wlan1.
void leave(const std::string &content) {
    shell().onSystem = [content](const std::string &) {
        putFile("/tmp/wlan_wave/wlan1_peer_info", content);
        return 0;
    };
}

TEST_F(EndPoint, Connection) {
    expectEach("00:11:22:33:44:55\n66:77:88:99:aa:bb\n=1&00:11:22:33:44:55=1&=0&\n00:11:22:33:44:55\n=0&"
               "00:11:22:33:44:55\r\n=0&none\n=0",
               [](const std::string &content) {
                   leave(content);
                   char mac[128] = "before";
                   const int result = GetEPContection("wlan1", mac);
                   EXPECT_STREQ(result ? "00:11:22:33:44:55" : "before", mac);
                   EXPECT_EQ(result, GetEPContection("wlan1", nullptr));
                   return std::to_string(result);
               });
    EXPECT_EQ("cat /proc/net/mtlk/wlan1/PeerFlowStatus | grep \"STA MAC\" | sed -e 's/: STA MAC//' -e 's/\\t//' "
              "-e 's/ //g' > /tmp/wlan_wave/wlan1_peer_info",
              shell().commands.back());
}

TEST_F(EndPoint, ChannelInfo) {
    expectEach("80\n36\n=1 80 36 -7&80\n\n36\n=0 80 -7 -7&\n80\n=0 -7 -7 -7&=0 -7 -7 -7&20\n6=1 20 6 -7",
               [](const auto &content) {
                   leave(content);
                   int32_t values[3] = {-7, -7, -7};
                   std::string text = std::to_string(ReqEPChannelInfo("wlan1", values));
                   for (const int32_t value : values) {
                       text += " " + std::to_string(value);
                   }
                   EXPECT_EQ(0, ReqEPChannelInfo("wlan1", nullptr));
                   return text;
               });
    // A line longer than the buffer is one value: that of its first piece.
    leave(std::string(125, '0') + "80" + std::string(200, '1') + "\n36\n" + std::string(126, '0') + "7");
    int32_t values[4] = {-7, -7, -7, -7};
    EXPECT_EQ(1, ReqEPChannelInfo("wlan1", values));
    EXPECT_EQ((std::vector<int32_t>{80, 36, 7, -7}), std::vector(values, values + 4));
    EXPECT_EQ("cat /proc/net/mtlk/wlan1/channel | grep -e width: -e primary_channel: | sed 's/[^0-9]*//g' > "
              "/tmp/wlan_wave/wlan1_peer_info",
              shell().commands.back());
}

TEST_F(EndPoint, DriverFailures) {
    const auto expect = [](int (*call)(const char *), const std::string &function, const std::string &missing) {
        resetShell();
        removeFile("/tmp/wlan_wave/wlan1_peer_info");
        EXPECT_EQ(0, call("wlan1"));
        EXPECT_EQ(tag(function) + "/tmp/wlan_wave/%s_" + missing + " does not exist\n", console());
        for (const int status : {-1, 127}) {
            shell().onSystem = [=](const std::string &) { return status; };
            EXPECT_EQ(0, call(std::string(200, 'x').c_str()));
            EXPECT_EQ(255U, shell().commands.back().size());
            EXPECT_EQ(tag(function) + shell().commands.back() + " system command fail\n", console());
        }
        EXPECT_EQ(0, call(nullptr));
    };
    expect([](const char *ifname) { return GetEPContection(ifname, nullptr); }, "GetEPContection", "peer_info");
    expect([](const char *ifname) { return ReqEPChannelInfo(ifname, nullptr); }, "ReqEPChannelInfo",
           "scan_by_User.result"); // another query's file
}

TEST_F(EndPoint, ConnectionStatus) {
    leave("00:11:22:33:44:55\n");
    answer({"1&Enable=true&SSIDReference=SSID.17."});
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

} // namespace
