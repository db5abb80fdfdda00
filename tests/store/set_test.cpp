// SPDX-License-Identifier: MIT
#include "cal/cal_sandbox.h"
#include "exchange/gateway.h"
#include "sandbox_fixture.h"
#include "store/boot.h"

namespace {

using Set = SandboxTest;

std::string addedName(const Message &message) {
    return caltofal_nextObject(&message.header, nullptr)->name;
}

std::unique_ptr<Message> change(uint32_t subOper, const std::string &path, const Pairs &values = {}) {
    auto message = Message::set();
    message->with(path, subOper, values);
    return message;
}

void bootLab() {
    const auto database = sandbox::openGateway(sandbox::Location::current());
    sandbox::Transaction transaction(*database, sandbox::Transaction::Kind::Write);
    sandbox::boot(*database);
    transaction.commit();
}

TEST_F(Set, ChangesSeveralObjects) {
    const auto message = Message::set();
    message->with("Device.Info.", kSet, {{"Name", "new name"}, {"Text", ""}});
    message->with("Device.Net.Host.2", kSet, {{"Active", "0"}, {"Level", "-10"}});
    ASSERT_EQ(cal_setValue(&message->header), 0) << cal_sandboxReason();
    EXPECT_EQ(valueOf("Device.Info", "Name"), "new name");
    EXPECT_EQ(valueOf("Device.Info", "Text"), "");
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Active"), "false");
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Level"), "-10");
    EXPECT_EQ(setOne("Device.Info", {}), 0) << "nothing to set is no mistake";
}

TEST_F(Set, RefusesAndChangesNothing) {
    const std::string tooLong(PARAM_VALUE_SIZE, 'x');
    struct Case {
        int code;
        uint32_t subOper;
        const char *path;
        Pairs values;
        const char *reason;
    };
    const Case cases[] = {
        {CALTOFAL_ABSENT_OBJECT, kSet, "Device.Nope", {{"A", "1"}}, "Device.Nope: no such object"},
        {CALTOFAL_UNKNOWN_PARAMETER, kSet, "Device.Info", {{"Nope", "1"}}, "Device.Info: no parameter \"Nope\""},
        {CALTOFAL_READ_ONLY, kSet, "Device.Info", {{"UpTime", "1"}}, "Device.Info.UpTime: read-only"},
        {CALTOFAL_READ_ONLY,
         kSet,
         "Device.Net",
         {{"HostNumberOfEntries", "1"}},
         "Device.Net.HostNumberOfEntries: read-only"},
        {CALTOFAL_WRONG_TYPE,
         kSet,
         "Device.Net.Host.2",
         {{"Active", "maybe"}},
         "Device.Net.Host.2.Active: \"maybe\" is not of type boolean"},
        {CALTOFAL_OUT_OF_RANGE,
         kSet,
         "Device.Net.Host.2",
         {{"Level", "11"}},
         "Device.Net.Host.2.Level: \"11\" is outside int(-10:10)"},
        {CALTOFAL_OUT_OF_RANGE, kSet, "Device.Info", {{"Name", ""}}, "Device.Info.Name: \"\" is outside string(1:16)"},
        {CALTOFAL_OUT_OF_RANGE,
         kSet,
         "Device.Info",
         {{"Text", tooLong}},
         "Device.Info.Text: the value is too long for a message"},
        {CALTOFAL_NOT_A_TABLE, kAdd, "Device.Info", {}, "Device.Info: not a table, nothing can be added"},
        {CALTOFAL_NOT_A_TABLE, kAdd, "Device.Net.Host.7", {}, "Device.Net.Host.7: not a table, nothing can be added"},
        {CALTOFAL_READ_ONLY, kAdd, "Device.Net.Zone", {}, "Device.Net.Zone: the table is read-only"},
        {CALTOFAL_ABSENT_OBJECT, kAdd, "Device.Net.Nope", {}, "Device.Net.Nope: no such object"},
        {CALTOFAL_READ_ONLY,
         kAdd,
         "Device.Net.Host",
         {{"AddressNumberOfEntries", "0"}},
         "Device.Net.Host.11.AddressNumberOfEntries: read-only"},
        {CALTOFAL_NOT_A_TABLE,
         kDelete,
         "Device.Net.Host",
         {},
         "Device.Net.Host: not an instance of a table, it cannot be deleted"},
        {CALTOFAL_READ_ONLY, kDelete, "Device.Net.Fixed.1", {}, "Device.Net.Fixed.1: the table is read-only"},
        {CALTOFAL_BAD_MESSAGE, 0, "Device.Info", {}, "Device.Info: 0 is neither add (1), delete (2) nor set (4)"},
    };
    const Lines before = exported();
    for (const Case &row : cases) {
        // The one that is refused comes last, behind what has to be undone.
        const auto message = change(kSet, "Device.Pair", {{"Left", "1"}});
        message->with("Device.Net.Host", kAdd, {{"Name", "new"}}).with("Device.Net.Host.2", kDelete, {});
        message->with(row.path, row.subOper, row.values);
        const Lines lines = message->lines();
        const auto alone = change(row.subOper, row.path, row.values);
        EXPECT_EQ(cal_setValue(&alone->header), row.code) << row.path;
        EXPECT_STREQ(cal_sandboxReason(), row.reason);
        EXPECT_NE(cal_setValue(&message->header), 0) << row.path;
        EXPECT_EQ(message->lines(), lines) << "no name is given to what was not added";
        EXPECT_EQ(exported(), before) << row.path;
    }
}

TEST_F(Set, AddsInstancesWithFreshNumbers) {
    const auto first = change(kAdd, "Device.Net.Host.", {{"Name", "new"}, {"Active", "1"}});
    ASSERT_EQ(cal_setValue(&first->header), 0) << cal_sandboxReason();
    EXPECT_EQ(addedName(*first), "Device.Net.Host.11");
    const auto answer = Message::get(kPlainGet, "Device.Net.Host.11");
    ASSERT_EQ(cal_getValue(&answer->header), 0);
    EXPECT_EQ(answer->lines(),
              (Lines{"Device.Net.Host.11.Name=new", "Device.Net.Host.11.Active=true", "Device.Net.Host.11.Level=0",
                     "Device.Net.Host.11.AddressNumberOfEntries=0", "Device.Net.Host.11.Stats.Bytes=0"}));
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "4");

    ASSERT_EQ(cal_setValue(&change(kDelete, "Device.Net.Host.11.")->header), 0);
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "3");
    EXPECT_EQ(valueOf("Device.Net.Host.11.Stats", "Bytes"), "?-202") << "what is below goes too";
    const auto second = change(kAdd, "Device.Net.Host");
    ASSERT_EQ(cal_setValue(&second->header), 0);
    EXPECT_EQ(addedName(*second), "Device.Net.Host.12") << "a number is never given twice";

    const auto inner = change(kAdd, "Device.Net.Host.12.Address", {{"IP", "192.0.2.9"}});
    ASSERT_EQ(cal_setValue(&inner->header), 0);
    EXPECT_EQ(addedName(*inner), "Device.Net.Host.12.Address.1");
    EXPECT_EQ(valueOf("Device.Net.Host.12", "AddressNumberOfEntries"), "1");

    const auto route = change(kAdd, "Device.Net.Router.1.Route");
    ASSERT_EQ(cal_setValue(&route->header), 0) << "a template below a fixed instance: " << cal_sandboxReason();
    EXPECT_EQ(valueOf("Device.Net.Router.1.Route.1", "Metric"), "-1");
}

TEST_F(Set, WorksThroughAMessageInOrder) {
    const auto message = change(kAdd, "Device.Net.Host", {{"Name", "a"}});
    message->with("Device.Net.Host.11", kSet, {{"Level", "3"}}).with("Device.Net.Host", kAdd, {{"Name", "b"}});
    message->with("Device.Net.Host.2", kDelete, {});
    ASSERT_EQ(cal_setValue(&message->header), 0) << cal_sandboxReason();
    EXPECT_EQ(message->lines(), (Lines{"Device.Net.Host.11.Name=a", "Device.Net.Host.11.Level=3",
                                       "Device.Net.Host.12.Name=b", "Device.Net.Host.2"}));
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Level"), "3");
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "4");
}

TEST_F(Set, StoresForTheNextBoot) {
    const auto message = change(kSet, "Device.Info", {{"Name", "later"}});
    message->with("Device.Net.Host", kAdd, {{"Name", "coming"}}).with("Device.Net.Host.2", kDelete, {});
    message->with("Device.Net.Host.11", kSet, {{"Level", "4"}});
    ASSERT_EQ(cal_setValueToDb(&message->header), 0) << cal_sandboxReason();
    EXPECT_EQ(addedName(*message), "Device.Info");

    EXPECT_EQ(valueOf("Device.Info", "Name"), "lab");
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Name"), "two");
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Name"), "?-202");
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "3");
    EXPECT_EQ(setOne("Device.Net.Host.11", {{"Level", "1"}}), CALTOFAL_ABSENT_OBJECT) << "it does not run yet";
    EXPECT_EQ(cal_setValueToDb(&change(kSet, "Device.Net.Host.2", {{"Level", "1"}})->header), CALTOFAL_ABSENT_OBJECT)
        << "it is no longer stored";

    bootLab();
    EXPECT_EQ(valueOf("Device.Info", "Name"), "later");
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Name"), "?-202");
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Name"), "coming");
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Level"), "4");
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "3");
}

TEST_F(Set, AppliesAndStoresAtOnce) {
    ASSERT_EQ(cal_setValueToDb(&change(kSet, "Device.Info", {{"Name", "stored"}})->header), 0);
    ASSERT_EQ(setOne("Device.Info", {{"Name", "both"}}), 0);
    bootLab();
    EXPECT_EQ(valueOf("Device.Info", "Name"), "both");
}

TEST_F(Set, FindsChangedValuesByFilter) {
    ASSERT_EQ(setOne("Device.Net.Host.7", {{"Name", "two"}}), 0);
    ASSERT_EQ(setOne("Device.Net.Host.2", {{"Name", "2"}}), 0);
    const auto message = Message::filter("Device.Net.Host", {{"Name", "two"}});
    ASSERT_EQ(cal_getValue(&message->header), 0);
    EXPECT_EQ(message->lines().front(), "Device.Net.Host.7.Name=two");
}

} // namespace
