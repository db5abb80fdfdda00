// SPDX-License-Identifier: MIT
// The upstream link of a repeater's endpoint, from its driver's files.
#include "frame/pipe.h"
#include "frame/text.h"
#include "wifi/driver/file.h"
#include "wifi/driver/formatted.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

// The file that a command leaves its output in; both queries use the same one.
struct PeerFile : Formatted<128> {
    explicit PeerFile(const char *ifname) : Formatted("/tmp/wlan_wave/%s_peer_info", ifname) {}
};

using Command = Formatted<256>;

bool run(const char *command, const char *function) {
    if (runShell(command)) {
        return true;
    }
    traceVola({Unit::WifiUtil, __LINE__, function}, "%s system command fail\n", command);
    return false;
}

// Names a pattern in place of the path.
void traceMissing(const char *pattern, const char *function = __builtin_FUNCTION()) {
    traceVola({Unit::WifiUtil, __LINE__, function}, "%s does not exist\n", pattern);
}

bool readTrimmedLine(File &file, char (&line)[kLineSize]) {
    if (!file.readLine(line)) {
        return false;
    }
    line[strcspn(line, "\n")] = '\0';
    return true;
}

// Reads a line and leaves out its newline and what does not fit.
bool readCutLine(File &file, char (&line)[kLineSize]) {
    constexpr size_t kLast = kLineSize - 2;
    line[kLast] = '\0';
    if (!readTrimmedLine(file, line)) {
        return false;
    }
    if (line[kLast]) {
        file.skipLine();
    }
    return true;
}

} // namespace

int GetEPContection(const char *ifname, char *macOut) {
    if (!ifname) {
        return 0;
    }
    const PeerFile peers(ifname);
    const Command command("cat /proc/net/mtlk/%s/PeerFlowStatus | grep \"STA MAC\" | "
                          "sed -e 's/: STA MAC//' -e 's/\\t//' -e 's/ //g' > %s",
                          ifname, peers.c_str());
    if (!run(command, __func__)) {
        return 0;
    }
    File file(peers);
    if (!file.opened()) {
        traceMissing("/tmp/wlan_wave/%s_peer_info");
        return 0;
    }
    char line[kLineSize];
    if (!readTrimmedLine(file, line) || isValidMacAddress(line) == 0) {
        return 0;
    }
    if (macOut) {
        copyText(macOut, sizeof(line), line);
    }
    return 1;
}

int ReqEPChannelInfo(const char *ifname, int32_t *values) {
    if (!ifname) {
        return 0;
    }
    const PeerFile figures(ifname);
    const Command command(
        "cat /proc/net/mtlk/%s/channel | grep -e width: -e primary_channel: | sed 's/[^0-9]*//g' > %s", ifname,
        figures.c_str());
    if (!run(command, __func__)) {
        return 0;
    }
    File file(figures);
    if (!file.opened()) {
        traceMissing("/tmp/wlan_wave/%s_scan_by_User.result"); // another query's file, as hosts' logs know it
        return 0;
    }
    int stored = 0;
    for (char line[kLineSize]; readCutLine(file, line);) {
        const int value = ConvInt(line);
        if (value == 0) {
            return 0;
        }
        if (values) {
            values[stored++] = value;
        }
    }
    return stored > 0 ? 1 : 0;
}
