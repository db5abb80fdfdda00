// SPDX-License-Identifier: MIT
#include "exchange/gateway.h"
#include "exchange/gateway_file.h"
#include "exchange/gateway_import.h"
#include "sandbox_fixture.h"

using namespace sandbox;

TEST(GatewayFile, WritesWhatItReads) {
    for (const char *line : {
             "Device.A.B = value with blanks, \"quotes\" and [brackets] = more",
             "Device.A.B =",
             "Device.A.B =  a leading blank",
             "Device.A.B = ends in a blank\\x20",
             R"(Device.A.B = \\ \n \r \t \x01 \xFF ü)",
             R"(Device.A.B [enum(Up|"No Signal"|"]") rw default="a \"b\" ] = c" running="x = y\n"] = Up)",
             "Device.A.3.B [list string(64) ro] = x,y",
             "Device.A.{i}. [table rw]",
             "Device.A.{i}.B.{i}. [table ro]",
             "Device.A.{i}.B [unsignedInt(1:) rw default=\"1\"]",
             "Device.A.1.B.{i}.C [string ro]",
             "Device.A.3.",
             "Device.A.3. [stored-only]",
             "Device.A. [last=12]",
         }) {
        const Entries entries = readGatewayFile(line, "f");
        ASSERT_EQ(entries.size(), 1U) << line;
        EXPECT_EQ(gatewayLine(entries[0]), line);
    }
}

TEST(GatewayFile, PassesOverCommentsAndLineEnds) {
    const Entries entries = readGatewayFile("# one\r\n\n  # two\n  Device.A.B = c\r\n\t\nDevice.A.D = e", "f");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(*entries[0].value, "c");
    EXPECT_EQ(entries[0].line, 4U);
    EXPECT_EQ(entries[1].fullPath(), "Device.A.D");
}

TEST(GatewayFile, NamesTheLineOfAMistake) {
    for (const char *line : {
             "Device",
             "Device..A = 1",
             "Device.A B = 1",
             "Device.A.B",
             "Device.A.B=1",
             "Device.A.B =1",
             "Device.A.0.B = 1",
             "Device.A.01.B = 1",
             "Device.1.2.B = 1",
             "Device.-A.B = 1",
             "Device.A. = 1",
             "Device.A.B [int = 1",
             "Device.A.B [int string] = 1",
             "Device.A.B [whatever] = 1",
             "Device.A.B [list] = 1",
             "Device.A.B [table rw] = 1",
             "Device.A. [rw]",
             "Device.A.B [default=x] = 1",
             "Device.A.B [default=\"\\q\"] = 1",
             "Device.A.B = \\q",
             "Device.A.B = \\x00",
             "Device.A.B = \\x1",
             "Device.A.{i}.B = 1",
             "Device.A.{i} [table rw]",
             "Device.A. [int]",
             "Device.A.{i}.B [last=3]",
             "Device.{i}.{i}.B [int]",
             "{i}.B [int]",
         }) {
        try {
            readGatewayFile("Device.A.A = 1\n" + std::string(line) + "\n", "f.tr181");
            ADD_FAILURE() << "accepted: " << line;
        } catch (const FileError &error) {
            EXPECT_EQ(std::string(error.what()).substr(0, 11), "f.tr181:2: ") << line;
        }
    }
}

using Import = SandboxTest;

TEST_F(Import, TakesAllOrNothing) {
    const Lines before = exported();
    struct Case {
        const char *text;
        const char *message;
    };
    const Case cases[] = {
        {"Device.New.A = 1\nDevice.Net.Host.2.Level = 11\n",
         "f:2: Device.Net.Host.2.Level: \"11\" is outside int(-10:10)"},
        {"Device.New.A [boolean] = x\n", "f:1: Device.New.A: \"x\" is not of type boolean"},
        {"Device.New.A [int default=\"x\"] = 1\n", "f:1: Device.New.A: \"x\" is not of type int"},
        {"Device.New.A = 1\nDevice.New.B = 1\nDevice.New.A = 2\n", "f:3: Device.New.A was already given in line 1"},
        {"Device.New.{i}.A [int default=\"x\"]\n", "f:1: Device.New.{i}.A: \"x\" is not of type int"},
    };
    const auto database = openGateway(location());
    for (const Case &row : cases) {
        try {
            Transaction transaction(*database, Transaction::Kind::Write);
            importEntries(*database, readGatewayFile(row.text, "f"), "f");
            ADD_FAILURE() << "accepted: " << row.text;
        } catch (const FileError &error) {
            EXPECT_STREQ(error.what(), row.message);
        }
    }
    EXPECT_EQ(exported(), before);
}

TEST_F(Import, MergesIntoWhatIsThere) {
    const auto database = openGateway(location());
    {
        Transaction transaction(*database, Transaction::Kind::Write);
        importEntries(*database,
                      readGatewayFile("Device.Net.Host.2.Level = 9\n"                       // type and access stay
                                      "Device.Net.Host.{i}.Tag [string rw default=\"t\"]\n" // for old and new instances
                                      "Device.Net.Host.11.Name = eleven\n"
                                      "Device.Info.UpTime [unsignedInt(:100)] = 43\n",
                                      "f"),
                      "f");
        transaction.commit();
    }
    EXPECT_EQ(setOne("Device.Net.Host.2", {{"Level", "11"}}), CALTOFAL_OUT_OF_RANGE);
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Level"), "9");
    EXPECT_EQ(valueOf("Device.Net.Host.7", "Tag"), "t");
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Tag"), "t");
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "4");
    EXPECT_EQ(valueOf("Device.Info", "UpTime"), "43");
}
