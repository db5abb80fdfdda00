// SPDX-License-Identifier: MIT
#include "sandbox_fixture.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Kill = SandboxTest;

// One message after another, each with the next number everywhere and with one host more or less.
[[noreturn]] void changeForEver(int number, int started) {
    for (;; ++number) {
        const std::string text = std::to_string(number);
        const auto message = Message::set();
        message->with("Device.Pair", kSet, {{"Left", text}}).with("Device.Net.Host", kAdd, {{"Name", text}});
        for (const char *host : {"2", "7", "10"}) {
            message->with("Device.Net.Host." + std::string(host), kSet, {{"Name", text}});
        }
        message->with("Device.Pair", kSet, {{"Right", text}});
        const int code = cal_setValue(&message->header);
        const std::string added = code == 0 ? message->lines()[1] : "";
        const auto removal = Message::set();
        removal->with(added.substr(0, added.rfind(".Name")), kDelete, {});
        const bool removed = number % 2 != 0 || cal_setValue(&removal->header) == 0;
        if (code != 0 || !removed || write(started, "", 1) != 1) {
            _exit(1);
        }
    }
}

// Waits until the child has sent its first message, so that slow starts do not keep it from getting anywhere.
void awaitFirst(int started) {
    char byte = 0;
    ASSERT_EQ(read(started, &byte, 1), 1);
}

// Every place holds the same number, and the counts are true.
void expectWhole(int round) {
    const std::string number = valueOf("Device.Pair", "Left");
    EXPECT_EQ(valueOf("Device.Pair", "Right"), number) << "round " << round;
    for (const char *host : {"2", "7", "10"}) {
        EXPECT_EQ(valueOf("Device.Net.Host." + std::string(host), "Name"), number) << "round " << round;
    }
    const auto hosts = Message::get(kLeafGet, "Device.Net.Host", {"Name"});
    ASSERT_EQ(cal_getValue(&hosts->header), 0);
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), std::to_string(hosts->lines().size())) << "round " << round;
}

TEST_F(Kill, LeavesEachMessageDoneOrUndone) {
    constexpr int kRounds = 300;
    for (const char *host : {"2", "7", "10"}) {
        ASSERT_EQ(setOne("Device.Net.Host." + std::string(host), {{"Name", "0"}}), 0);
    }
    std::mt19937 random(20240229);
    std::uniform_int_distribution<int> delayUs(0, 4'000);
    const auto start = std::chrono::steady_clock::now();
    int number = 1;
    int round = 0;
    for (; round < kRounds && std::chrono::steady_clock::now() - start < std::chrono::seconds(20); ++round) {
        int started[2];
        ASSERT_EQ(pipe(started), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            changeForEver(number, started[1]);
        }
        if (round % 4 != 0) { // else it may be killed while it still opens the gateway
            awaitFirst(started[0]);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(delayUs(random)));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        close(started[0]);
        close(started[1]);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child gave up with " << WEXITSTATUS(status);
        expectWhole(round);
        number = std::atoi(valueOf("Device.Pair", "Left").c_str()) + 1;
    }
    EXPECT_GE(round, 50) << "too slow to say anything";
    EXPECT_GT(number, round / 2) << "the children never got anywhere";
}

} // namespace
