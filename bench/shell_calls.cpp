// SPDX-License-Identifier: MIT
// caltofal_shell_calls: the time of each call that runs a shell command, beside that of the bare command with its
// output thrown away. The tools are stubs; the commands are the library's own, recorded.
//
// Exit code: 0 all calls are within the limit, 1 one is not.
#include "caltofal.h"
#include "platform/platform.h"
#include "stub_tools.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <dlfcn.h>
#include <functional>
#include <iterator>

using namespace bench;

namespace {

constexpr double kLimit = 1.05;
constexpr int kPairs = 101;
constexpr int kTries = 5; // others use the machine too: one quiet moment is enough

struct Command {
    std::string text;
    bool piped; // by popen(), else by system()
};

// Where the commands that the library runs are put down, or nullptr.
std::vector<Command> *recorded = nullptr;

template <class Function>
Function real(const char *name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] FILE *popen(const char *command, const char *modes) {
    static const auto next = real<FILE *(*)(const char *, const char *)>("popen");
    if (recorded) {
        recorded->push_back({command, true});
    }
    return next(command, modes);
}

[[gnu::visibility("default")]] int system(const char *command) {
    static const auto next = real<int (*)(const char *)>("system");
    if (recorded) {
        recorded->push_back({command, false});
    }
    return next(command);
}

// The mesh sync's wait is not measured.
[[gnu::visibility("default")]] unsigned sleep(unsigned /*seconds*/) {
    return 0;
}

} // extern "C"

namespace {

constexpr char kAnswers[] = R"(
    get Device.WiFi.Radio.1
    Device.WiFi.Radio.1
        IEEE80211hEnabled = false
    get Device.WiFi.X_ZINTU_RoamingMesh.
    Device.WiFi.X_ZINTU_RoamingMesh
        Enable = true
    get Device.X_ZINTU_CurrentNetwork
    Device.X_ZINTU_CurrentNetwork
        OperationMode = 4
)";

struct Call {
    const char *name;
    int result; // a call that does not answer this did not do its work
    std::function<int()> run;
};

int channels() {
    WifiChannelList list;
    return GetChannelList(kInterface, 1, &list);
}

int currentChannel() {
    int channel = 0;
    return GetCurrentChannel(kInterface, 0, &channel) == 1 ? channel : -1;
}

int stations() {
    static WifiStaList list;
    return GetStaInfo(kInterface, nullptr, &list);
}

int connection() {
    char mac[128];
    return GetEPContection(kInterface, mac);
}

int channelInfo() {
    int32_t info[3];
    return ReqEPChannelInfo(kInterface, info) == 1 ? info[0] : -1;
}

int combine() {
    return CombineScanResultFiles("/dev/null", "/dev/null", "/tmp/wlan_wave/bench0_peer_info");
}

int firstLine(char *(*get)(const char *, char *)) {
    char line[128];
    return atoi(get("gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave", line));
}

// Left out are calls that run another one's code with another text, and Remove_Confs_File(), which removes files.
const std::vector<Call> &calls() {
    static const std::vector<Call> all = {
        {"GetPhyNumber", 0, [] { return GetPhyNumber(kInterface); }},
        {"GetChannelList", 13, channels},
        {"GetCurrentChannel", 6, currentChannel},
        {"GetStaInfo", 32, stations},
        {"GetEPContection", 1, connection},
        {"ReqEPChannelInfo", 36, channelInfo},
        {"CombineScanResultFiles", 0, combine},
        {"ReqScan", 1, [] { return ReqScan(kInterface, "Home Net"); }},
        {"ReqWPSActive", 1, ReqWPSActive},
        {"get_from_shell", 1, [] { return firstLine(get_from_shell); }},
        {"ZINTU_meshgrove_get_from_shell", 1, [] { return firstLine(ZINTU_meshgrove_get_from_shell); }},
        {"ZINTU_meshgrove_sync_to_slave", 0, ZINTU_meshgrove_sync_to_slave},
    };
    return all;
}

void runBare(const std::vector<Command> &commands) {
    for (const Command &command : commands) {
        if (!command.piped) {
            (void)system(command.text.c_str());
            continue;
        }
        FILE *output = popen(command.text.c_str(), "r");
        char buffer[4096];
        while (fread(buffer, 1, sizeof(buffer), output) > 0) {
        }
        pclose(output);
    }
}

double microseconds(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> &times) {
    const auto middle = times.begin() + static_cast<ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

struct Times {
    double library, bare;
    [[nodiscard]] double ratio() const { return library / bare; }
};

// Turn about, so that what else the machine does meets both.
Times measure(const Call &call, const std::vector<Command> &commands) {
    std::vector<double> library;
    std::vector<double> bare;
    for (int i = 0; i < kPairs; ++i) {
        library.push_back(microseconds(call.run));
        reclaimMessages();
        bare.push_back(microseconds([&] { runBare(commands); }));
    }
    return {median(library), median(bare)};
}

// Whether a call is within the limit in one of several tries.
bool judge(const Call &call) {
    std::vector<Command> commands;
    recorded = &commands;
    const int result = call.run();
    recorded = nullptr;
    if (result != call.result || commands.empty()) {
        printf("%-31s answers %d, ran %zu commands\n", call.name, result, commands.size());
        return false;
    }
    Times times = measure(call, commands);
    for (int i = 1; i < kTries && times.ratio() > kLimit; ++i) {
        times = measure(call, commands);
    }
    const bool within = times.ratio() <= kLimit;
    printf("%-31s %9zu %9.0f %9.0f %9.3f%s %8.2f\n", call.name, commands.size(), times.library, times.bare,
           times.ratio(), within ? " " : "!", kLimit);
    fflush(stdout);
    return within;
}

} // namespace

int main() {
    const StubTools tools;
    holdAnswers(parseAnswers(kAnswers));
    printf("%-31s %9s %9s %9s %9s  %8s\n", "call", "commands", "time", "bare", "ratio", "limit");
    bool within = true;
    for (const Call &call : calls()) {
        within = judge(call) && within;
    }
    printf("\nMicroseconds, medians of %d runs, each followed by a bare one. bare: the same commands by popen() or\n"
           "system(), their output thrown away. ! marks a missed limit.\n",
           kPairs);
    return within ? 0 : 1;
}
