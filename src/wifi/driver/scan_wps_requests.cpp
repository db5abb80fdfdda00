// SPDX-License-Identifier: MIT
// Asking the service daemon for WPS and scan actions, over the message bus's command-line client.
#include "frame/bounded_text.h"
#include "frame/pipe.h"
#include "frame/trace.h"

using namespace frame;

namespace {

// A longer command is cut, even inside quotes.
using Command = BoundedText<256>;

// 1 when the shell ran.
int call(const char *command, const char *function) {
    traceVola({Unit::WifiUtil, __LINE__, function}, "Call system function with [%s] \n", command);
    return runShell(command) ? 1 : 0;
}

int requestWps(const char *action, const char *function = __builtin_FUNCTION()) {
    const Command command(
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
    return requestWps("PBC");
}

int ReqWPSCancel(void) {
    return requestWps("CancelWPS");
}

int ReqWPSReset(void) {
    return requestWps("ResetWPS");
}

int ReqScan(const char *ifname, const char *ssid) {
    if (!ifname && !ssid) {
        return 0;
    }
    const Command command(
        "source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{\"nid\": "
        "'$NOTIFY_WIFI_SCAN_ACTION',\"type\": false,\"pn1\": \"Action\", \"pv1\": \"SCAN\",\"pn2\": \"Name\", "
        "\"pv2\": \"%s\", \"pn3\": \"SSID\", \"pv3\": \"%s\"}'>/dev/null",
        orNull(ifname), orNull(ssid));
    return call(command, __func__);
}
