// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

using DeviceId = LibraryTest;

constexpr char kMac[] = "aa:bb:cc:dd:ee:ff";

std::vector<Object> hosts() {
    return {object("Device.Hosts", {"HostNumberOfEntries=3"}),
            object("Device.Hosts.Host.2", {"IPAddress=192.168.1.2", "PhysAddress=AA:BB:CC:DD:EE:FF"}),
            object("Device.Hosts.Host.2.IPv4Address.1", {"IPAddress=10.0.0.1"}),
            object("Device.Hosts.Host.10.", {"IPAddress=192.168.1.10", "PhysAddress=00:00:00:00:00:10"}),
            object("Device.Hosts.Host.11", {"IPAddress=192.168.1.10"})};
}

TEST_F(DeviceId, Matches) {
    const std::pair<std::string, int> rows[] = {
        {kMac, 2},          {"AA:BB:CC:DD:EE:FF", 2}, {"192.168.1.2", 2},       {"192.168.1.10", 10},   {"10.0.0.1", 0},
        {"192.168.1.1", 0}, {"1.2.3.4:80", 0},        {"aa:bb:cc:dd:ee:f0", 0}, {"123.123.123.123", 0},
    };
    for (const auto &[identifier, expected] : rows) {
        platform().on("Device.Hosts.", hosts());
        std::string text = identifier;
        EXPECT_EQ(expected, GetDeviceID(text.data())) << identifier;
        EXPECT_EQ("getValue 1/0x1004/2 Device.Hosts.", platform().callTexts().back());
        EXPECT_EQ(expected ? ""
                           : vola("FaltoCal", 1169, "GetDeviceID") + "INPUT arg sIdentifier = " + identifier +
                                 " is NOT exist in Device.Hosts.Host.{i}.\n",
                  takeConsole());
    }
}

TEST_F(DeviceId, NoRequestForWhatIsNoAddress) {
    for (std::string text : {"", "1.2", "1.2.3.", "aabbccddeeff", "aa-bb-cc-dd-ee-ff", "1234.1234.1234.1234"}) {
        EXPECT_EQ(0, GetDeviceID(text.data())) << text;
    }
    EXPECT_TRUE(platform().calls().empty());
    EXPECT_EQ("", takeConsole());
}

TEST_F(DeviceId, EmptyTableAndFailure) {
    std::vector<Object> none = hosts();
    none[0].params = {{"Other", "1"}, {"HostNumberOfEntries", "0"}};
    platform().on("Device.Hosts.", none);
    std::string mac = kMac;
    EXPECT_EQ(0, GetDeviceID(mac.data()));
    EXPECT_EQ(vola("FaltoCal", 1135, "GetDeviceID") + "There is no Device.Hosts.Host entry \n", takeConsole());

    std::vector<Object> later = hosts(); // a second object without "Host." is passed over
    later.insert(later.begin() + 1, object("Device.Hosts", {"HostNumberOfEntries=0"}));
    platform().on("Device.Hosts.", later);
    EXPECT_EQ(2, GetDeviceID(mac.data()));

    takeConsole();
    EXPECT_EQ(0, GetDeviceID(mac.data()));
    EXPECT_TRUE(takeConsole().ends_with("\n\n\t[GetDeviceID : 1124] faltocal_send_main_multi_obj is Failure\n"));
}

} // namespace
