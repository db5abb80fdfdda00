// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/gateway.h"
#include "exchange/gateway_file.h"
#include "sandbox_fixture.h"

using namespace sandbox;

using RoundTrip = SandboxTest;

namespace {

std::string joined(const Lines &lines) {
    std::string text;
    for (const std::string &line : lines) {
        text += line + "\n";
    }
    return text;
}

} // namespace

TEST_F(RoundTrip, KeepsEverythingThatAGatewayHolds) {
    const auto message = Message::set();
    message->with("Device.Info", kSet, {{"Name", "later"}}).with("Device.Net.Host", kAdd, {{"Name", "coming"}});
    message->with("Device.Net.Host.11.Address", kAdd, {{"IP", "::1"}}).with("Device.Net.Host.2", kDelete, {});
    ASSERT_EQ(cal_setValueToDb(&message->header), 0);
    const auto removed = Message::set();
    removed->with("Device.Net.Host", kAdd, {}).with("Device.Net.Host.12", kDelete, {});
    ASSERT_EQ(cal_setValue(&removed->header), 0);

    const Lines before = exported();
    ASSERT_TRUE(createGateway(location("copy"), readGatewayFile(joined(before), "copy"), "copy"));
    EXPECT_EQ(joined(exported("copy")), joined(before));

    // The number of an instance that was deleted is not given again, and the same comes and goes with a boot.
    setenv("CALTOFAL_GATEWAY", "copy", 1);
    const auto added = Message::set();
    added->with("Device.Net.Host", kAdd, {});
    ASSERT_EQ(cal_setValue(&added->header), 0);
    EXPECT_EQ(added->lines(), Lines{"Device.Net.Host.13"});
    EXPECT_EQ(valueOf("Device.Net.Host.11", "Name"), "?-202");
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), "4");
}

TEST_F(RoundTrip, KeepsTheDemos) {
    ASSERT_FALSE(demos().empty());
    for (const Demo &demo : demos()) {
        const std::string name(demo.name);
        const Lines made = exported(name); // made on first use
        EXPECT_GT(made.size(), 100U) << name;
        ASSERT_TRUE(createGateway(location(name + ".copy"), readGatewayFile(joined(made), name), name));
        EXPECT_EQ(joined(exported(name + ".copy")), joined(made)) << name;
    }
}

TEST_F(RoundTrip, GivesEveryDemoACountThatIsTrue) {
    for (const Demo &demo : demos()) {
        const auto database = openGateway(location(std::string(demo.name)));
        Statement counts(*database, "SELECT t.key, p.running, (SELECT count(*) FROM object i WHERE i.parent = t.id) "
                                    "FROM object t JOIN parameter p ON p.object = t.parent WHERE t.kind = 1 "
                                    "AND t.key LIKE '%.' || replace(p.name, 'NumberOfEntries', '') || '.' "
                                    "AND p.name LIKE '%NumberOfEntries'");
        int tables = 0;
        while (counts.step()) {
            ++tables;
            EXPECT_EQ(counts.text(1), std::to_string(counts.integer(2))) << demo.name << " " << counts.text(0);
        }
        EXPECT_GT(tables, 10) << demo.name;
    }
}
