// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Requests = WifiTest;

constexpr char kNotify[] = "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{";

TEST_F(Requests, Wps) {
    struct Row {
        int (*request)();
        const char *function, *action;
    };
    for (const Row &row : {Row{ReqWPSActive, "ReqWPSActive", "PBC"}, Row{ReqWPSCancel, "ReqWPSCancel", "CancelWPS"},
                           Row{ReqWPSReset, "ReqWPSReset", "ResetWPS"}}) {
        const std::string command =
            std::string(kNotify) +
            R"("notify_id": '$NOTIFY_WIFI_WPS_ACTION', "type": false, "pn1": "Action", "pv1": ")" + row.action +
            "\"}' > /dev/null\n";
        for (const auto &[status, result] : {std::pair{0, 1}, {256, 1}, {127 * 256, 1}, {127, 0}, {-1, 0}}) {
            shell().onSystem = [status = status](const std::string &) { return status; };
            EXPECT_EQ(result, row.request()) << status;
            EXPECT_EQ(command, shell().commands.back());
            EXPECT_EQ(tag(row.function) + "Call system function with [" + command + "] \n", console());
        }
    }
}

TEST_F(Requests, Scan) {
    const auto expect = [](int result, const char *ifname, const char *ssid) {
        const std::string command =
            std::string(kNotify) +
            R"("nid": '$NOTIFY_WIFI_SCAN_ACTION',"type": false,"pn1": "Action", "pv1": "SCAN",)" +
            R"("pn2": "Name", "pv2": ")" + (ifname ? ifname : "(null)") + R"(", "pn3": "SSID", "pv3": ")" +
            (ssid ? ssid : "(null)") + "\"}'>/dev/null";
        EXPECT_EQ(result, ReqScan(ifname, ssid));
        EXPECT_EQ(command.substr(0, 255), shell().commands.back());
        EXPECT_EQ(tag("ReqScan") + "Call system function with [" + command.substr(0, 255) + "] \n", console());
    };
    EXPECT_EQ(0, ReqScan(nullptr, nullptr));
    EXPECT_TRUE(shell().commands.empty());
    expect(1, "wlan0", "My Net");
    expect(1, "wlan0", "a\"b'c");
    expect(1, nullptr, "");
    expect(1, "wlan0", nullptr);
    expect(1, "wlan0", std::string(200, 's').c_str());
    shell().onSystem = [](const std::string &) { return 127; };
    expect(0, "wlan0", "");
}

TEST_F(Requests, CreateMessage) {
    MsgHeader header;
    expectEach("get=1&set=2&factoryreset=32&backup=64&reboot=128&fwupgrade=256", [&](const std::string &word) {
        memset(&header, 0xff, sizeof(header));
        EXPECT_EQ(0, faltocal_create_msg(&header, word.c_str()));
        EXPECT_EQ((std::vector<uint32_t>{0x1004, 32, 1, 0}),
                  (std::vector{header.listFlags, header.owner, header.initialised, header.reserved}));
        EXPECT_EQ(&header.objectList->link, header.objectList->link.next);
        const uint32_t code = header.mainOper;
        faltocal_finalize(&header);
        return std::to_string(code);
    });
    memset(&header, 0xee, sizeof(header));
    for (const char *word : {"GET", "", "get ", static_cast<const char *>(nullptr)}) {
        EXPECT_EQ(-1, faltocal_create_msg(&header, word));
    }
    EXPECT_EQ(0xeeeeeeeeU, header.mainOper);
    platform().failAllocation(1);
    EXPECT_EQ(0, faltocal_create_msg(&header, "set"));
    EXPECT_EQ(nullptr, header.objectList);
    EXPECT_EQ(parts("2 faltocal{HELP_CREATE_OBJ, 102}: malloc failed\n"), takeSyslog());
}

TEST_F(Requests, UciEscape) {
    expectEach(R"(=&a"b=a\"b&it's=it'\''s&\=\\&$`; %=$`; %&'''='\'''\'''\'')", [](const auto &source) {
        std::string target(4 * source.size() + 1, 'x');
        EXPECT_EQ(0, ConvSpecialChar_forUciCli(source.c_str(), target.data()));
        return std::string(target.c_str());
    });
}

} // namespace
