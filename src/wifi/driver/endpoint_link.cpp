// SPDX-License-Identifier: MIT
// The upstream link of a repeater's endpoint.
#include "frame/bounded_text.h"
#include "frame/pipe.h"
#include "frame/text.h"
#include "wifi/driver/endpoint_lines.h"
#include "wifi/driver/file.h"
#include "wifi/wifi_trace.h"

using namespace frame;
using namespace wifi;

namespace {

// The file that a command leaves its output in; both queries use the same one.
struct PeerFile : BoundedText<128> {
    explicit PeerFile(const char *ifname) : BoundedText("/tmp/wlan_wave/%s_peer_info", ifname) {}
};

// Runs a command and opens the file that it wrote. A file that is missing is traced by a pattern, not by its path.
bool openOutput(const char *command, File &file, const PeerFile &output, const char *missing, const char *function) {
    const Place place(Unit::WifiUtil, __LINE__, function);
    if (!runShell(command)) {
        traceVola(place, "%s system command fail\n", command);
        return false;
    }
    if (!file.open(output)) {
        traceVola(place, "%s does not exist\n", missing);
        return false;
    }
    return true;
}

} // namespace

int GetEPContection(const char *ifname, char *macOut) {
    if (!ifname) {
        return 0;
    }
    const PeerFile peers(ifname);
    const BoundedText<256> command("cat /proc/net/mtlk/%s/PeerFlowStatus | grep \"STA MAC\" | "
                                   "sed -e 's/: STA MAC//' -e 's/\\t//' -e 's/ //g' > %s",
                                   ifname, peers.c_str());
    File file;
    char line[kLineSize];
    if (!openOutput(command, file, peers, "/tmp/wlan_wave/%s_peer_info", __func__) || !file.readLine(line) ||
        !isPeer(line)) {
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
    const BoundedText<256> command(
        "cat /proc/net/mtlk/%s/channel | grep -e width: -e primary_channel: | sed 's/[^0-9]*//g' > %s", ifname,
        figures.c_str());
    File file;
    // The pattern of the survey's file: hosts know this trace as it is.
    if (!openOutput(command, file, figures, "/tmp/wlan_wave/%s_scan_by_User.result", __func__)) {
        return 0;
    }
    ChannelFigures stored(values);
    for (char line[kLineSize]; file.readStartOfLine(line);) {
        if (!stored.addLine(line)) {
            return 0;
        }
    }
    return stored.any() ? 1 : 0;
}
