// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Requests = WifiTest;

TEST_F(Requests, Wps) {
    struct Row {
        int (*request)();
        const char *function, *action;
    };
    for (const Row &row : {Row{ReqWPSActive, "ReqWPSActive", "PBC"}, Row{ReqWPSCancel, "ReqWPSCancel", "CancelWPS"},
                           Row{ReqWPSReset, "ReqWPSReset", "ResetWPS"}}) {
        const std::string command = "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify "
                                    "'{\"notify_id\": '$NOTIFY_WIFI_WPS_ACTION', \"type\": false, \"pn1\": \"Action\", "
                                    "\"pv1\": \"" +
                                    std::string(row.action) + "\"}' > /dev/null\n";
        for (const auto &[status, result] : {std::pair{0, 1}, {256, 1}, {127 * 256, 1}, {127, 0}, {-1, 0}}) {
            shell().onSystem = [status = status](const std::string &) { return status; };
            EXPECT_EQ(result, row.request()) << status;
            EXPECT_EQ(command, shell().commands.back());
            EXPECT_EQ(tag(row.function) + "Call system function with [" + command + "] \n", console());
        }
    }
}

TEST_F(Requests, Scan) {
    const auto command = [](const std::string &name, const std::string &ssid) {
        return "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{\"nid\": "
               "'$NOTIFY_WIFI_SCAN_ACTION',\"type\": false,\"pn1\": \"Action\", \"pv1\": \"SCAN\",\"pn2\": \"Name\", "
               "\"pv2\": \"" +
               name + R"(", "pn3": "SSID", "pv3": ")" + ssid + "\"}'>/dev/null";
    };
    EXPECT_EQ(0, ReqScan(nullptr, nullptr));
    EXPECT_TRUE(shell().commands.empty());
    EXPECT_EQ(1, ReqScan("wlan0", "My Net"));
    EXPECT_EQ(command("wlan0", "My Net"), shell().commands.back());
    EXPECT_EQ(tag("ReqScan") + "Call system function with [" + command("wlan0", "My Net") + "] \n", console());
    EXPECT_EQ(1, ReqScan("wlan0", "a\"b'c"));
    EXPECT_EQ(command("wlan0", "a\"b'c"), shell().commands.back());
    EXPECT_EQ(1, ReqScan(nullptr, ""));
    EXPECT_EQ(command("(null)", ""), shell().commands.back());
    EXPECT_EQ(1, ReqScan("wlan0", nullptr));
    EXPECT_EQ(command("wlan0", "(null)"), shell().commands.back());
    const std::string longSsid(200, 's');
    EXPECT_EQ(1, ReqScan("wlan0", longSsid.c_str()));
    EXPECT_EQ(command("wlan0", longSsid).substr(0, 255), shell().commands.back());
    shell().onSystem = [](const std::string &) { return 127; };
    EXPECT_EQ(0, ReqScan("wlan0", ""));
}

TEST_F(Requests, CreateMessage) {
    for (const auto &[word, code] : {std::pair{"get", 1U},
                                     {"set", 2U},
                                     {"factoryreset", 32U},
                                     {"backup", 64U},
                                     {"reboot", 128U},
                                     {"fwupgrade", 256U}}) {
        MsgHeader header;
        memset(&header, 0xff, sizeof(header));
        EXPECT_EQ(0, faltocal_create_msg(&header, word));
        EXPECT_EQ(code, header.mainOper);
        EXPECT_EQ(0x1004U, header.listFlags);
        EXPECT_EQ(32U, header.owner);
        EXPECT_EQ(1U, header.initialised);
        EXPECT_EQ(0U, header.reserved);
        EXPECT_EQ(&header.objectList->link, header.objectList->link.next);
        faltocal_finalize(&header);
    }
    MsgHeader header;
    memset(&header, 0xee, sizeof(header));
    for (const char *word : {"GET", "", "get ", static_cast<const char *>(nullptr)}) {
        EXPECT_EQ(-1, faltocal_create_msg(&header, word));
    }
    EXPECT_EQ(0xeeeeeeeeU, header.mainOper);
    platform().failAllocation(1);
    EXPECT_EQ(0, faltocal_create_msg(&header, "set"));
    EXPECT_EQ(nullptr, header.objectList);
    EXPECT_EQ(std::vector<std::string>{"2 faltocal{HELP_CREATE_OBJ, 102}: malloc failed\n"}, takeSyslog());
}

TEST_F(Requests, UciEscape) {
    for (const auto &[source, escaped] : {std::pair{"", ""},
                                          {"a\"b", "a\\\"b"},
                                          {"it's", "it'\\''s"},
                                          {"\\", "\\\\"},
                                          {"$`; \xc3\xa4", "$`; \xc3\xa4"},
                                          {"'''", R"('\'''\'''\'')"}}) {
        std::string target(4 * strlen(source) + 1, 'x');
        EXPECT_EQ(0, ConvSpecialChar_forUciCli(source, target.data()));
        EXPECT_STREQ(escaped, target.c_str());
    }
}

} // namespace
