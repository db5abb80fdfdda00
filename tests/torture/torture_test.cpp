// SPDX-License-Identifier: MIT
// Every function that asks the configuration layer, with each allocation and each request failing in turn: nothing
// crashes, nothing is left behind, nothing is written past a record, and the lock is free.
#include "device.h"
#include "getters.h"
#include "network/pages.h"

#include <algorithm>

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
        static const Reply rich = richAnswer();
        platform().otherwise(rich);
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

TEST_P(Torture, EachNodeOfAnAnswerIsMissingOnce) {
    restart();
    GetParam().run();
    const int nodes = platform().answeredNodes();
    // A long page takes a minute under an emulator, and ten seconds under a sanitizer: there a hundred of many are
    // enough.
    const int step = CALTOFAL_SLOW ? std::max(1, nodes / 100) : 1;
    for (int n = 1; n <= nodes; n += step) {
        restart();
        platform().failNode(n);
        GetParam().run();
        expectReleased("without node " + std::to_string(n));
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

// As many bytes as the layer can hold: a value goes on with "x".
void lengthen(Param &param) {
    *param.value += std::string(PARAM_VALUE_SIZE - 1 - param.value->size(), 'x');
}

TEST_P(Torture, LongestNamesAndValues) {
    Reply longest = richAnswer();
    for (Object &object : longest.objects) {
        object.name += std::string(255 - object.name.size(), '1');
        std::for_each(object.params.begin(), object.params.end(), lengthen);
    }
    restart();
    platform().otherwise(longest);
    GetParam().run();
    expectReleased("longest names and values");
}

// One parameter of each object at a time: the others keep the values that lead to it.
TEST_P(Torture, LongestValueOfEachParameter) {
    size_t most = 0;
    for (const Object &object : richAnswer().objects) {
        most = std::max(most, object.params.size());
    }
    for (size_t i = 0; i < most; ++i) {
        Reply answer = richAnswer();
        for (Object &object : answer.objects) {
            if (i < object.params.size()) {
                lengthen(object.params[i]);
            }
        }
        restart();
        platform().otherwise(answer);
        GetParam().run();
        expectReleased("longest parameter " + std::to_string(i));
    }
}

using Heads = std::vector<const frame::PageHead *>;

// Adds the pages that a getter fills to `filled`.
template <class Record>
void expectFilled(int32_t (*getter)(Record *), const Heads &pages, Heads &filled) {
    resetPlatform();
    platform().otherwise(richAnswer());
    Record record = {};
    getter(&record);
    for (const frame::PageHead *page : pages) {
        for (const frame::Field &field : page->fields()) {
            const std::string bytes(reinterpret_cast<const char *>(&record) + field.offset, field.size);
            EXPECT_NE(std::string::npos, bytes.find_first_not_of('\0')) << page->object() << ' ' << field.name;
        }
    }
    filled.insert(filled.end(), pages.begin(), pages.end());
}

// What the tests above stand on: the answer fills every row of every page.
TEST(RichAnswer, FillsEveryRow) {
    using namespace network;
    Heads filled;
    expectFilled(ZintuGet_DefWanInfo, {&kDefaultGateway.head, &kWanAddress.head, &kPpp.head}, filled);
    expectFilled(ZintuGet_LineInfo, {&kDslLine.head, &kDslChannel.head, &kDslTestParams.head, &kDslTotals.head},
                 filled);
    expectFilled(ZintuGet_LANv4Info, {&kLanAddress.head, &kLanPool.head, &kLanEthernet.head}, filled);
    expectFilled(ZintuGet_LANv6Info, {&kLanIpv6.head, &kLanPoolV6.head}, filled);
    for (const frame::PageHead *page : kPages) {
        EXPECT_EQ(1, std::count(filled.begin(), filled.end(), page))
            << "the page of \"" << page->object() << "\" with " << page->fields().front().name
            << ": add it above to the getter that fills it";
    }
}

} // namespace
