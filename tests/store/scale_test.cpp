// SPDX-License-Identifier: MIT
//
// Ten thousand hosts cost no more than three where three are asked for.
#include "cal/cal_sandbox.h"
#include "exchange/gateway.h"
#include "exchange/gateway_import.h"
#include "sandbox_fixture.h"

#include <algorithm>
#include <ctime>

using namespace sandbox;

namespace {

constexpr int kHosts = 10'000;

Entries manyHosts() {
    Entries entries;
    for (int i = 11; i <= kHosts; ++i) {
        const std::string number = std::to_string(i);
        for (const auto &[name, value] : {std::pair("Name", "host" + number), {"Active", "true"}}) {
            Entry entry = entryOf("Device.Net.Host." + number + "." + name);
            entry.value = value;
            entries.push_back(std::move(entry));
        }
        Entry address = entryOf("Device.Net.Host." + number + ".Address.1.IP");
        address.value = "2001:db8::" + number;
        entries.push_back(std::move(address));
    }
    return entries;
}

// CPU time that one call takes, the least of several runs, in nanoseconds.
template <class Call>
double cost(Call call) {
    double least = 1e18;
    for (int run = 0; run < 9; ++run) {
        timespec before{};
        timespec after{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &before);
        for (int i = 0; i < 20; ++i) {
            call();
        }
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &after);
        least = std::min(least, static_cast<double>(after.tv_sec - before.tv_sec) * 1e9 +
                                    static_cast<double>(after.tv_nsec - before.tv_nsec));
    }
    return least / 20;
}

TEST_F(SandboxTest, TenThousandHostsCostNoMoreThanWhatIsAsked) {
    struct Case {
        const char *title;
        void (*call)();
    };
    const Case cases[] = {
        {"one host", [] { cal_getValue(&Message::get(kPlainGet, "Device.Net.Host.7")->header); }},
        {"own name of the branch",
         [] { cal_getValue(&Message::get(kPlainGet, "Device.Net.", {"HostNumberOfEntries"})->header); }},
        {"filter",
         [] {
             cal_getValue(&Message::filter("Device.Net.Host", {{"Name", "seven"}})->header);
         }},
        {"filter without a match",
         [] {
             cal_getValue(&Message::filter("Device.Net.Host", {{"Name", "x"}})->header);
         }},
        {"leaf of a neighbour", [] { cal_getValue(&Message::get(kLeafGet, "Device.Net.Fixed")->header); }},
        {"set",
         [] {
             setOne("Device.Net.Host.7", {{"Level", "60"}});
         }},
        {"add and delete",
         [] {
             const auto added = Message::set();
             added->with("Device.Net.Host.", kAdd, {});
             cal_setValue(&added->header);
             const auto removed = Message::set();
             removed->with(caltofal_nextObject(&added->header, nullptr)->name, kDelete, {});
             cal_setValue(&removed->header);
         }},
    };
    std::vector<double> small;
    for (const Case &row : cases) {
        small.push_back(cost(row.call));
    }
    {
        const auto database = openGateway(location());
        Transaction transaction(*database, Transaction::Kind::Write);
        importEntries(*database, manyHosts(), "hosts");
        transaction.commit();
    }
    for (size_t i = 0; i < std::size(cases); ++i) {
        const double large = cost(cases[i].call);
        // A scan of the table would cost some thousand times as much.
        EXPECT_LT(large, 6 * small[i] + 50'000) << cases[i].title << ": " << small[i] << " ns, then " << large << " ns";
    }
    const auto all = Message::get(kPlainGet, "Device.Net.Host", {"IP"});
    ASSERT_EQ(cal_getValue(&all->header), 0);
    const Lines lines = all->lines();
    ASSERT_EQ(lines.size(), static_cast<size_t>(kHosts - 10 + 2));
    EXPECT_EQ(lines[2], "Device.Net.Host.11.Address.1.IP=2001:db8::11");
    EXPECT_EQ(lines.back(), "Device.Net.Host.10000.Address.1.IP=2001:db8::10000");
}

} // namespace
