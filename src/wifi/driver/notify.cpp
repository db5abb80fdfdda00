// SPDX-License-Identifier: MIT
// Asking the service daemon for WPS and scan actions, over the message bus's command-line client.
#include "frame/pipe.h"
#include "frame/trace.h"
#include "wifi/driver/command_text.h"

using namespace frame;
using namespace wifi;

namespace {

// Commands are cut at these sizes, even inside quotes.
constexpr size_t kLongCommand = 1024;
constexpr size_t kShortCommand = 256;

// 1 when the shell ran.
int call(const char *command, const char *function) {
    traceVola({Unit::WifiUtil, __LINE__, function}, "Call system function with [%s] \n", command);
    return runShell(command) ? 1 : 0;
}

int requestWps(const char *action, size_t size, const char *function = __builtin_FUNCTION()) {
    char command[kLongCommand];
    formatCut(command, size,
              "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{\"notify_id\": "
              "'$NOTIFY_WIFI_WPS_ACTION', \"type\": false, \"pn1\": \"Action\", \"pv1\": \"%s\"}' > /dev/null\n",
              action);
    return call(command, function);
}

const char *orNull(const char *text) {
    return text ? text : "(null)";
}

} // namespace

int ReqWPSActive(void) {
    return requestWps("PBC", kLongCommand);
}

int ReqWPSCancel(void) {
    return requestWps("CancelWPS", kShortCommand);
}

int ReqWPSReset(void) {
    return requestWps("ResetWPS", kShortCommand);
}

int ReqScan(const char *ifname, const char *ssid) {
    if (!ifname && !ssid) {
        return 0;
    }
    char command[kShortCommand];
    formatCut(command, sizeof(command),
              "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{\"nid\": "
              "'$NOTIFY_WIFI_SCAN_ACTION',\"type\": false,\"pn1\": \"Action\", \"pv1\": \"SCAN\",\"pn2\": \"Name\", "
              "\"pv2\": \"%s\", \"pn3\": \"SSID\", \"pv3\": \"%s\"}'>/dev/null",
              orNull(ifname), orNull(ssid));
    return call(command, __func__);
}
