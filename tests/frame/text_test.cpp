// SPDX-License-Identifier: MIT
#include "device.h"
#include "platform.h"

using namespace test;

namespace {

TEST(Text, Itoa) {
    const std::pair<int, const char *> rows[] = {
        {0, ""}, {-5, ""}, {1, "1"}, {305, "305"}, {999999999, "999999999"}, {INT32_MAX, "2147483647"}};
    for (const auto &[value, digits] : rows) {
        char out[11];
        EXPECT_EQ(0, itoa(value, out));
        EXPECT_STREQ(digits, out);
    }
}

TEST(Text, Atob) {
    const std::pair<const char *, int> rows[] = {{"1", 1},  {"true", 1}, {"TrUe", 1}, {"", 0},      {"0", 0},
                                                 {"10", 0}, {"yes", 0},  {"on", 0},   {"TRUE1", 0}, {"tru", 0}};
    for (const auto &[text, flag] : rows) {
        EXPECT_EQ(flag, atob(text)) << text;
    }
}

TEST(Text, InPlace) {
    char mac[] = "mac-aa:bz\xe4";
    EXPECT_STREQ("MAC-AA:BZ\xe4", strupr(mac));
    for (const auto &[text, reversed] : {std::pair{"", ""}, {"a", "a"}, {"abcd", "dcba"}, {"abc", "cba"}}) {
        char buffer[8];
        strcpy(buffer, text);
        reverse_string(buffer);
        EXPECT_STREQ(reversed, buffer);
    }
    char blanks[] = " \t\v\nabc";
    EXPECT_STREQ("\nabc", trim_start_space(blanks));
}

TEST(Text, RemoveRssTag) {
    const std::pair<std::string, std::string> rows[] = {
        {"  <ssid>Home Net</ssid>\n", "Home Net"},
        {"<ssid>a</b></ssid> tail", "a</b>"}, // the last closing tag counts
        {"<ssid></ssid>", ""},
        {"<none>x</y>", "x"}, // the opening tag is not compared
        {"<ssid>no closing tag", "<ssid>no closing tag"},
        {"<s", "<s"},
        {"", ""},
        {"<ssid>" + std::string(300, 'x') + "</ssid>", "<ssid>" + std::string(300, 'x') + "</ssid>"},
    };
    for (const auto &[element, payload] : rows) {
        std::string text = element;
        EXPECT_EQ(text.data(), remove_rss_tag(text.data(), "<ssid>"));
        EXPECT_EQ(payload, text.c_str());
    }
}

TEST(Text, MacAddress) {
    const std::pair<const char *, int> rows[] = {
        {"", -1},
        {"00:11:22:33:44:55", 0},
        {"aa:BB:cc:DD:ee:FF", 0},
        {"aa-BB-cc-DD-ee-FF", -1},
        {"00:11:22:33:44:5g", -1},
        {"00:11:22:33:44:55 ", -1},
        {"x00:11:22:33:44:55", -1},
        {"00:11:22:33:44", -1},
    };
    for (const auto &[mac, valid] : rows) {
        EXPECT_EQ(valid, zintu_isValidMacAddress(mac)) << mac;
    }
    EXPECT_EQ(-1, zintu_isValidMacAddress(nullptr));
}

TEST(Text, Ipv4Address) {
    for (const auto &[address, valid] :
         {std::pair{"192.168.1.1", 0}, {"0.0.0.0", 0}, {"", -1}, {"1.2.3", -1}, {"256.1.1.1", -1}, {"::1", -1}}) {
        EXPECT_EQ(valid, zintu_isValidIPv4Address(address)) << address;
    }
    EXPECT_EQ(-1, zintu_isValidIPv4Address(nullptr));
}

using MacFile = LibraryTest;

TEST_F(MacFile, LinesAndTraces) {
    const std::string tag1279 = vola("FaltoCal", 1279, "zintu_scapi_getMacFromFile") + "GOT MAC FROM CONFIG FILE\n";
    const std::string tag1275 =
        "\n\n\t[zintu_scapi_getMacFromFile : 1275] Error = Couldn't get mac for the interface\n";
    const std::string tag1260 = "\n\n\t[zintu_scapi_getMacFromFile : 1260] strtok_r is Failure\n";
    struct Row {
        std::string content, mac, console;
    };
    const Row rows[] = {
        {"eth1>00\neth0>AA:BB:CC:DD:EE:FF\neth0>late\n", "AA:BB:CC:DD:EE:FF", tag1279},
        {"eth0> AA:BB:CC:DD:EE:FF", "AA:BB:CC:DD:EE:FF", tag1279},
        {"xeth0>> 11:22 rest", "11:22", tag1279},
        {"eth0>\n", "#", tag1260},
        {"eth1>00\n", "#", tag1275},
        {"", "#", tag1275},
        {std::string(63, 'x') + "eth0>cut line\n", "cut", tag1279}, // lines are read 63 characters at a time
    };
    for (const Row &row : rows) {
        putFile("/opt/lantiq/etc/nextmac.conf", row.content);
        char mac[64] = "#";
        EXPECT_EQ(row.mac == "#" ? -1 : 0, zintu_scapi_getMacFromFile("eth0", mac)) << row.content;
        EXPECT_EQ(row.mac, mac);
        EXPECT_EQ(row.console, takeConsole());
    }
    failOpen(1);
    char mac[64] = "#";
    EXPECT_EQ(-1, zintu_scapi_getMacFromFile("eth0", mac));
    EXPECT_EQ("\n\n\t[zintu_scapi_getMacFromFile : 1240] fopen is Failure\n", takeConsole());
}

TEST(InsertDot, Paths) {
    const std::pair<const char *, const char *> rows[] = {{"", ""}, {"a", "a."}, {"a.", "a."}, {"a.b", "a.b."}};
    for (const auto &[path, dotted] : rows) {
        char buffer[8];
        strcpy(buffer, path);
        zintu_InsertDotEndofObj(buffer);
        EXPECT_STREQ(dotted, buffer);
    }
    zintu_InsertDotEndofObj(nullptr);
}

} // namespace
