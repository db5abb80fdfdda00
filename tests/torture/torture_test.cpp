// SPDX-License-Identifier: MIT
// Every function that asks the configuration layer, with each allocation and each request failing in turn: nothing
// crashes, nothing is left behind, nothing is written past a record, and the lock is free.
#include "device.h"
#include "getters.h"

using namespace test;

namespace {

class Torture : public LibraryTest, public testing::WithParamInterface<Getter> {
  protected:
    void SetUp() override {
        LibraryTest::SetUp();
        leaveNodes(); // counted here
        resetShell();
    }
    // A fresh platform that answers everything.
    static void restart() {
        resetPlatform();
        platform().otherwise(richAnswer());
        shell().onPopen = [](const std::string &) { return "1 2412 160 80 40+ 40- DFS\n"; };
    }
    // Only what is left on purpose is left; a failure may leave less of it.
    static void expectReleased(const std::string &when) {
        const Getter &getter = GetParam();
        if (getter.leftMessages == 0) {
            EXPECT_EQ(0U, platform().nodes()) << getter.name << ' ' << when;
        } else {
            EXPECT_LE(platform().heads(), getter.leftMessages) << getter.name << ' ' << when;
        }
    }
};
INSTANTIATE_TEST_SUITE_P(Getters, Torture, testing::ValuesIn(getters()),
                         [](const auto &row) { return row.param.name; });

TEST_P(Torture, EachAllocationFailsOnce) {
    restart();
    GetParam().run();
    const int allocations = platform().allocations();
    ASSERT_GT(allocations, 1);
    expectReleased("without a failure");
    for (int n = 1; n <= allocations; ++n) {
        restart();
        platform().failAllocation(n);
        GetParam().run();
        expectReleased("allocation " + std::to_string(n));
    }
}

TEST_P(Torture, EachRequestFailsOnce) {
    restart();
    GetParam().run();
    const auto requests = static_cast<int>(platform().calls().size());
    ASSERT_GT(requests, 0);
    for (const int code : {-1, -202, -208, -211, 5}) {
        for (int n = 1; n <= requests; ++n) {
            restart();
            platform().failSend(n, code);
            GetParam().run();
            expectReleased("request " + std::to_string(n) + " code " + std::to_string(code));
        }
    }
}

TEST_P(Torture, LongestValues) {
    restart();
    Reply longest = richAnswer();
    for (Object &object : longest.objects) {
        object.name += std::string(255 - object.name.size(), '1');
        for (Param &param : object.params) {
            *param.value += std::string(PARAM_VALUE_SIZE - 1 - param.value->size(), 'x');
        }
    }
    platform().otherwise(longest);
    GetParam().run();
    expectReleased("longest values");
}

} // namespace
