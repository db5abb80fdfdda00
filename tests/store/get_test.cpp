// SPDX-License-Identifier: MIT
#include "cal/cal_sandbox.h"
#include "sandbox_fixture.h"

#include <algorithm>

namespace {

using Get = SandboxTest;

struct Case {
    std::string title; // of a refused message: the reason
    std::unique_ptr<Message> message;
    int code;
    Lines lines; // of a refused message: those that it was sent with
};

const Lines kHost2 = {
    "Device.Net.Host.2.Name=two",
    "Device.Net.Host.2.Active=true",
    "Device.Net.Host.2.Level=5",
    "Device.Net.Host.2.AddressNumberOfEntries=2",
    "Device.Net.Host.2.Address.1.IP=192.0.2.2",
    "Device.Net.Host.2.Address.2.IP=2001:db8::2",
    "Device.Net.Host.2.Stats.Bytes=0",
};
const Lines kHost10 = {
    "Device.Net.Host.10.Name=ten",      "Device.Net.Host.10.Active=true",
    "Device.Net.Host.10.Level=0",       "Device.Net.Host.10.AddressNumberOfEntries=0",
    "Device.Net.Host.10.Stats.Bytes=0",
};

Lines joined(Lines first, const Lines &second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST_F(Get, AnswersObjectsAndNames) {
    std::vector<Case> cases;
    const auto get = [&](const char *title, uint32_t flags, const char *path, const Lines &names, Lines lines) {
        cases.push_back({title, Message::get(flags, path, names), 0, std::move(lines)});
    };
    get("object and all below", kPlainGet, "Device.Net.Host.2.", {}, kHost2);
    get("without the final dot", kPlainGet, "Device.Net.Host.2", {}, kHost2);
    get("any value kind", 4, "Device.Net.Host.2", {}, kHost2);
    get("listed instance whose other values are defaults", kPlainGet, "Device.Net.Host.7.", {},
        {"Device.Net.Host.7.Name=seven", "Device.Net.Host.7.Active=false", "Device.Net.Host.7.Level=70",
         "Device.Net.Host.7.AddressNumberOfEntries=0", "Device.Net.Host.7.Stats.Bytes=0"});
    get("own name", kPlainGet, "Device.Net.", {"HostNumberOfEntries"}, {"Device.Net.HostNumberOfEntries=3"});
    get("names of a table, instances by number", kPlainGet, "Device.Net.Host.", {"Name"},
        {"Device.Net.Host.2.Name=two", "Device.Net.Host.7.Name=seven", "Device.Net.Host.10.Name=ten"});
    get("names in declared order, whatever the order asked", kPlainGet, "Device.Net.Host.2", {"Level", "Name"},
        {"Device.Net.Host.2.Name=two", "Device.Net.Host.2.Level=5"});
    get("a name asked twice", kPlainGet, "Device.Net.Host.2", {"Name", "Name"}, {"Device.Net.Host.2.Name=two"});
    get("names of a branch", kPlainGet, "Device.Net.", {"IP"},
        {"Device.Net.Host.2.Address.1.IP=192.0.2.2", "Device.Net.Host.2.Address.2.IP=2001:db8::2"});
    get("own names are not sought below", kPlainGet, "Device.Net.Host.2", {"Name", "IP"},
        {"Device.Net.Host.2.Name=two", "Device.Net.Host.2.Address.1.IP=192.0.2.2",
         "Device.Net.Host.2.Address.2.IP=2001:db8::2"});
    get("leaf of an instance", kLeafGet, "Device.Net.Host.10", {}, {kHost10.begin(), kHost10.end() - 1});
    get("leaf of a table", kLeafGet, "Device.Net.Host", {"Level"},
        {"Device.Net.Host.2.Level=5", "Device.Net.Host.7.Level=70", "Device.Net.Host.10.Level=0"});
    get("leaf of an object without parameters", kLeafGet, "Device.Net.Bare", {}, {});
    get("only one of the leaf bits is no leaf", 0x100, "Device.Net.Host.2", {}, kHost2);
    get("defaults, but for the store's own counts", kDefaultGet, "Device.Net.Host.7", {},
        {"Device.Net.Host.7.Name=", "Device.Net.Host.7.Active=false", "Device.Net.Host.7.Level=50",
         "Device.Net.Host.7.AddressNumberOfEntries=0", "Device.Net.Host.7.Stats.Bytes=0"});
    get("named default", kDefaultGet, "Device.Info", {"Name"}, {"Device.Info.Name=none"});
    get("empty table", kPlainGet, "Device.Net.Zone.", {}, {});
    get("a name that the object lacks is left out", kPlainGet, "Device.Info.", {"Nope", "Name"},
        {"Device.Info.Name=lab"});
    get("also when it is the only one", kLeafGet, "Device.Net.", {"IP"}, {});
    get("and when some instances have it", kPlainGet, "Device.Net.Host.", {"IP"},
        {"Device.Net.Host.2.Address.1.IP=192.0.2.2", "Device.Net.Host.2.Address.2.IP=2001:db8::2"});
    get("name that only the table's template knows", kPlainGet, "Device.Net.Zone.", {"Label"}, {});
    get("escapes are the file's, not the value's", kPlainGet, "Device.Info", {"Text"},
        {"Device.Info.Text=two\nlines, a \\ and \xFF "});
    for (const Case &row : cases) {
        EXPECT_EQ(cal_getValue(&row.message->header), row.code) << row.title << ": " << cal_sandboxReason();
        EXPECT_EQ(row.message->lines(), row.lines) << row.title;
        EXPECT_STREQ(cal_sandboxReason(), "");
    }
}

TEST_F(Get, FiltersInstances) {
    std::vector<Case> cases;
    const auto filter = [&](const char *title, const char *path, const Pairs &filters, Lines lines) {
        cases.push_back({title, Message::filter(path, filters), 0, std::move(lines)});
    };
    filter("one, with all below", "Device.Net.Host.", {{"Name", "two"}}, kHost2);
    filter("several, by number", "Device.Net.Host", {{"Active", "true"}}, joined(kHost2, kHost10));
    filter("all filters hold", "Device.Net.Host", {{"Active", "true"}, {"Level", "0"}}, kHost10);
    filter("an instance itself", "Device.Net.Host.10", {{"Name", "ten"}}, kHost10);
    filter("an inner table", "Device.Net.Host.2.Address", {{"IP", "192.0.2.2"}},
           {"Device.Net.Host.2.Address.1.IP=192.0.2.2"});
    for (const Case &row : cases) {
        EXPECT_EQ(cal_getValue(&row.message->header), row.code) << row.title << ": " << cal_sandboxReason();
        EXPECT_EQ(row.message->lines(), row.lines) << row.title;
    }
    // With a name beside the filter, only that is answered; leaf bits do not matter.
    Message message(1, kLeafGet);
    message.with("Device.Net.Host.", 0, {{"Active", "true"}}).param("Bytes", nullptr);
    EXPECT_EQ(cal_getValue(&message.header), 0);
    EXPECT_EQ(message.lines(), (Lines{"Device.Net.Host.2.Stats.Bytes=0", "Device.Net.Host.10.Stats.Bytes=0"}));
}

TEST_F(Get, AnswersEachObjectOfAMessage) {
    const auto message = Message::get(kPlainGet, "Device.Pair.", {"Right"});
    message->object("Device.Info.").param("UpTime", nullptr);
    message->object("Device.Pair.").param("Left", nullptr);
    EXPECT_EQ(cal_getValue(&message->header), 0);
    EXPECT_EQ(message->lines(), (Lines{"Device.Pair.Right=0", "Device.Info.UpTime=42", "Device.Pair.Left=0"}));
}

TEST_F(Get, RefusesAndLeavesTheMessageAsItWas) {
    std::vector<Case> cases;
    const auto refused = [&](int code, std::unique_ptr<Message> message, const std::string &reason) {
        Lines lines = message->lines();
        cases.push_back({reason, std::move(message), code, std::move(lines)});
    };
    const std::string longPath = "Device." + std::string(300, 'x');
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, "Device.Nope."), "Device.Nope: no such object");
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, "Device.Net.Host.3"), "Device.Net.Host.3: no such object");
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, "device.net."), "device.net: no such object");
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, "Device..Net"), "\"Device..Net\": no such object");
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, "Device.Info%s\n."), "\"Device.Info%s\\n\": no such object");
    refused(CALTOFAL_ABSENT_OBJECT, Message::get(4, longPath),
            longPath.substr(0, 255) + "...: a path this long names no object");
    refused(CALTOFAL_NO_MATCH, Message::filter("Device.Net.Host.", {{"Name", "nobody"}}),
            "Device.Net.Host: no instance has Name = \"nobody\"");
    refused(CALTOFAL_NO_MATCH, Message::filter("Device.Net.Host.", {{"Name", "two"}, {"Level", "0"}}),
            "Device.Net.Host: no instance has Name = \"two\" and Level = \"0\"");
    refused(CALTOFAL_NO_MATCH, Message::filter("Device.Net.Zone.", {{"Label", "x"}}),
            "Device.Net.Zone: no instance has Label = \"x\"");
    refused(CALTOFAL_NO_MATCH, Message::filter("Device.Net.Host.", {{"Nope", "x"}}),
            "Device.Net.Host: no instance has a parameter \"Nope\"");
    refused(CALTOFAL_BAD_MESSAGE, Message::get(4, ""), "an object has an empty path");
    refused(CALTOFAL_BAD_MESSAGE, Message::get(4, "Device.Info.", {""}), "Device.Info: a parameter has no name");
    refused(CALTOFAL_BAD_MESSAGE, Message::get(SOPT_OBJATTR, "Device.Info."),
            "the message does not hold value objects");
    refused(CALTOFAL_BAD_MESSAGE, std::make_unique<Message>(1, 4), "the message names no object");
    refused(CALTOFAL_BAD_MESSAGE, std::make_unique<Message>(2, 4), "main operation 2 where 1 is meant");
    for (Case &row : cases) {
        EXPECT_EQ(cal_getValue(&row.message->header), row.code);
        EXPECT_EQ(cal_sandboxReason(), row.title);
        row.message->header.listFlags = SOPT_OBJVALUE;
        EXPECT_EQ(row.message->lines(), row.lines);
    }
    EXPECT_EQ(cal_getValue(nullptr), CALTOFAL_BAD_MESSAGE);

    const std::string log = readFile(location().logFile());
    EXPECT_NE(log.find(" get -202 absent-object Device.Nope: no such object\n"), std::string::npos) << log;
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), static_cast<long>(cases.size()) + 1);
}

} // namespace
