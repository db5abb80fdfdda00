// SPDX-License-Identifier: MIT
// Lines of captures: what is written reads back.
#include "pages/capture/file.h"
#include "pages/capture/standard_access.h"
#include "pages/failure.h"

#include <gtest/gtest.h>

using namespace pages;
using namespace pages::capture;

namespace {

TEST(Line, ReadsBackWhatWasWritten) {
    const std::string_view values[] = {"",
                                       "plain",
                                       "  blanks  ",
                                       "a = b",
                                       "line\nline\r\t",
                                       "\\x41",
                                       "back\\slash",
                                       "\"quoted\"",
                                       "gr\xc3\xbc\xc3\x9f",
                                       "\xff\x80\x01\x7f",
                                       "[x] = y"};
    for (const std::string_view value : values) {
        for (const char *annotations : {"", "string rw", R"(string(1:3) rw default="a ] b \" =")"}) {
            std::string line = parameterLine({"Device.A.1.", "B", annotations, std::string(value)});
            ASSERT_EQ(line.find('\n'), line.size() - 1) << line;
            const std::vector<Line> read = parametersOf("@capture\n" + line, "attic");
            ASSERT_EQ(read.size(), 1U) << line;
            EXPECT_EQ(read[0].object + read[0].parameter, "Device.A.1.B");
            EXPECT_EQ(read[0].annotations, annotations) << line;
            EXPECT_EQ(read[0].value, value) << line;
        }
    }
}

TEST(Line, KnowsWhatTheStandardMakesReadOnly) {
    const struct {
        const char *object, *name;
        bool readOnly;
    } cases[] = {
        {"Device.DeviceInfo.", "UpTime", true},
        {"Device.DeviceInfo.", "ProvisioningCode", false},
        {"Device.Hosts.Host.12.", "HostName", true},
        {"Device.DHCPv4.Server.Pool.1.", "Enable", false},
        {"Device.IP.Interface.3.Stats.", "BytesSent", true},
        {"Device.IP.Interface.3.", "LowerLayers", false},
        {"Device.DSL.Channel.1.", "LowerLayers", true},
        {"Device.WiFi.Radio.1.", "PossibleChannels", true},
        {"Device.WiFi.Radio.1.", "Channel", false},
        {"Device.WiFi.SSID.1.", "SSID", false},
        {"Device.WiFi.SSID.1", "BSSID", true},
        {"Device.WiFi.EndPoint.1.Profile.1.", "SSID", false},
        {"Device.ATM.Link.1.", "Name", true},
        {"Device.NAT.PortMapping.2.", "ExternalPort", false},
        {"Device.X_ACME.", "AAL", true}, // nobody gives another meaning to a standard name
        {"Device.X_ACME.", "Foo", false},
        {"Device.X_ACME.", "", false},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(isReadOnlyByStandard(row.object, row.name), row.readOnly) << row.object << row.name;
    }
}

} // namespace
