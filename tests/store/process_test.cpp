// SPDX-License-Identifier: MIT
//
// Many processes, and many threads of one, on one gateway.
#include "cal/cal_sandbox.h"
#include "sandbox_fixture.h"
#include "store/store.h"

#include <filesystem>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace sandbox;

// A child of a process with threads has none of them, but the thread sanitizer takes them for leaked.
extern "C" const char *__tsan_default_options();
extern "C" const char *__tsan_default_options() {
    return "report_thread_leaks=0";
}

namespace {

using Processes = SandboxTest;

constexpr int kWorkers = 8;

// Runs work(0) to work(count - 1) in processes of their own, all at once. The results.
template <class Work>
std::vector<int> inProcesses(int count, Work work) {
    int gate[2];
    EXPECT_EQ(pipe(gate), 0);
    std::vector<pid_t> children;
    for (int i = 0; i < count; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            close(gate[1]);
            char byte = 0;
            [[maybe_unused]] const ssize_t opened = read(gate[0], &byte, 1); // ends when the gate is opened
            _exit(work(i));
        }
        children.push_back(child);
    }
    close(gate[0]);
    close(gate[1]);
    std::vector<int> results;
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        results.push_back(WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status));
    }
    return results;
}

// Adds hosts of its own, changes them and reads them back. 0, or the step that failed.
int keepHosts(int worker) {
    for (int round = 0; round < 25; ++round) {
        const std::string name = std::to_string(worker) + "-" + std::to_string(round);
        const auto added = Message::set();
        added->with("Device.Net.Host.", kAdd, {{"Name", name}})
            .with("Device.Pair", kSet, {{"Left", name}, {"Right", name}});
        if (cal_setValue(&added->header) != 0) {
            return 1;
        }
        const std::string path = caltofal_nextObject(&added->header, nullptr)->name;
        if (setOne(path, {{"Level", std::to_string(worker)}}) != 0) {
            return 2;
        }
        const auto found = Message::filter("Device.Net.Host.", {{"Name", name}});
        if (cal_getValue(&found->header) != 0 || found->lines()[2] != path + ".Level=" + std::to_string(worker)) {
            return 3;
        }
        const auto pair = Message::get(kPlainGet, "Device.Pair");
        if (cal_getValue(&pair->header) != 0 || pair->lines()[0].substr(17) != pair->lines()[1].substr(18)) {
            return 4; // half of another worker's message
        }
    }
    return 0;
}

void expectAllHosts(int workers) {
    const auto all = Message::get(kLeafGet, "Device.Net.Host", {"Name"});
    ASSERT_EQ(cal_getValue(&all->header), 0);
    std::set<std::string> names;
    for (const std::string &line : all->lines()) {
        names.insert(line.substr(line.find('=') + 1));
    }
    EXPECT_EQ(names.size(), 3U + static_cast<size_t>(workers) * 25);
    EXPECT_EQ(valueOf("Device.Net", "HostNumberOfEntries"), std::to_string(names.size()));
}

TEST_F(Processes, LoseNothing) {
    EXPECT_EQ(inProcesses(kWorkers, keepHosts), std::vector<int>(kWorkers, 0));
    expectAllHosts(kWorkers);
}

TEST_F(Processes, LoseNothingInThreads) {
    std::vector<int> results(4, -1);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&results, i] { results[static_cast<size_t>(i)] = keepHosts(i); });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(results, std::vector<int>(4, 0));
    expectAllHosts(4);
}

TEST_F(Processes, MakeTheHomeGatewayTogether) {
    unsetenv("CALTOFAL_GATEWAY");
    const auto firstUse = [](int worker) {
        const std::string name = "X" + std::to_string(worker);
        if (setOne("Device.DeviceInfo", {{"ProvisioningCode", name}}) != 0) {
            return 1;
        }
        return cal_getValue(&Message::get(kPlainGet, "Device.Hosts.")->header) == 0 ? 0 : 2;
    };
    EXPECT_EQ(inProcesses(kWorkers, firstUse), std::vector<int>(kWorkers, 0));
    for (const auto &entry : std::filesystem::directory_iterator(directory)) {
        EXPECT_EQ(entry.path().string().find("draft"), std::string::npos) << entry.path();
    }
    EXPECT_EQ(valueOf("Device.DeviceInfo", "ProvisioningCode").substr(0, 1), "X") << "nobody's set was overwritten";
}

TEST_F(Processes, ForkWithAnOpenGateway) {
    ASSERT_EQ(setOne("Device.Pair", {{"Left", "parent"}}), 0);
    const std::vector<int> results = inProcesses(3, [](int worker) {
        for (int i = 0; i < 20; ++i) {
            const std::string text = std::to_string(worker) + " " + std::to_string(i);
            if (setOne("Device.Net.Host." + std::string(worker == 0   ? "2"
                                                        : worker == 1 ? "7"
                                                                      : "10"),
                       {{"Name", text}}) != 0) {
                return 1;
            }
        }
        return valueOf("Device.Pair", "Left") == "parent" ? 0 : 2;
    });
    EXPECT_EQ(results, std::vector<int>(3, 0));
    // The parent goes on, and sees what its children did.
    EXPECT_EQ(valueOf("Device.Net.Host.2", "Name"), "0 19");
    EXPECT_EQ(valueOf("Device.Net.Host.10", "Name"), "2 19");
    EXPECT_EQ(setOne("Device.Pair", {{"Left", "after"}}), 0);
}

TEST_F(Processes, ForkWhileAnotherThreadWorks) {
    std::thread busy([] {
        for (int i = 0; i < 300; ++i) {
            EXPECT_EQ(setOne("Device.Pair", {{"Left", std::to_string(i)}}), 0);
        }
    });
    for (int i = 0; i < 20; ++i) {
        const std::vector<int> results = inProcesses(1, [i](int) {
            return setOne("Device.Pair", {{"Right", std::to_string(i)}});
        });
        EXPECT_EQ(results.front(), 0);
    }
    busy.join();
    EXPECT_EQ(valueOf("Device.Pair", "Left"), "299");
    EXPECT_EQ(valueOf("Device.Pair", "Right"), "19");
}

} // namespace
