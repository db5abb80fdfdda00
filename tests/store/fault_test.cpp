// SPDX-License-Identifier: MIT
#include "cal/cal_sandbox.h"
#include "exchange/gateway.h"
#include "sandbox_fixture.h"
#include "store/fault.h"
#include "value/path.h"

#include <chrono>
#include <sys/wait.h>
#include <unistd.h>

using namespace sandbox;

namespace {

class Faults : public SandboxTest {
  protected:
    static void order(const std::string &object, const std::string &operation, std::optional<int> code, int lateMs,
                      std::optional<int64_t> nth) {
        const auto database = openGateway(location());
        Transaction transaction(*database, Transaction::Kind::Write);
        addFault(*database, {0, object.empty() ? "" : *keyOf(object), operation, code, lateMs, nth});
        transaction.commit();
    }
    static int get(const std::string &path) { return cal_getValue(&Message::get(kPlainGet, path)->header); }
};

TEST_F(Faults, HitTheNthRequestOnABranch) {
    order("Device.Net.Host", "", CALTOFAL_STORE_BUSY, 0, 2);
    EXPECT_EQ(get("Device.Info"), 0);
    EXPECT_EQ(get("Device.Net."), 0) << "above the object";
    EXPECT_EQ(get("Device.Net.Host.2"), 0) << "the first";
    EXPECT_EQ(get("Device.Info"), 0);
    EXPECT_EQ(get("Device.Net.Host."), CALTOFAL_STORE_BUSY);
    EXPECT_STREQ(cal_sandboxReason(), "fault 1 hit Device.Net.Host");
    EXPECT_EQ(get("Device.Net.Host."), 0) << "it is used up";
}

TEST_F(Faults, HitEveryRequestOfOneKind) {
    order("", "set", -999, 0, std::nullopt);
    EXPECT_EQ(setOne("Device.Pair", {{"Left", "1"}}), -999);
    EXPECT_EQ(setOne("Device.Pair", {{"Left", "1"}}), -999);
    EXPECT_EQ(valueOf("Device.Pair", "Left"), "0");
    {
        const auto database = openGateway(location());
        clearFaults(*database);
    }
    EXPECT_EQ(setOne("Device.Pair", {{"Left", "1"}}), 0);
}

TEST_F(Faults, AnswerLate) {
    order("Device.Info", "get", std::nullopt, 60, std::nullopt);
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(get("Device.Info"), 0);
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(60));
}

TEST_F(Faults, CountOverProcesses) {
    constexpr int kProcesses = 4;
    constexpr int kRequests = 10;
    for (int nth = 1; nth <= 5; ++nth) {
        order("", "get", CALTOFAL_NO_MEMORY, 0, nth * 7);
    }
    int hits = 0;
    std::vector<pid_t> children;
    for (int i = 0; i < kProcesses; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            int failed = 0;
            for (int request = 0; request < kRequests; ++request) {
                failed += get("Device.Info") == CALTOFAL_NO_MEMORY ? 1 : 0;
            }
            _exit(failed);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        hits += WEXITSTATUS(status);
    }
    EXPECT_EQ(hits, 5) << "each of five faults hits one of forty requests";
}

} // namespace
