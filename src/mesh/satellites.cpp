// SPDX-License-Identifier: MIT
// The satellites of a mesh master: finding their address, and having settings pushed to them.
#include "frame/text.h"
#include "frame/trace.h"

#include <cstdio>
#include <unistd.h>

using namespace frame;

namespace {

constexpr int kMasterMode = 4; // bit of the operation mode
constexpr unsigned kSyncStartSeconds = 5;

bool hasSatellite() {
    char count[128] = "";
    ZINTU_meshgrove_get_from_shell("gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave", count);
    return number(count) > 0;
}

} // namespace

char *ZINTU_meshgrove_get_IP_from_MAC(char *mac) {
    char command[512];
    snprintf(command, sizeof(command), "%s %s", "/opt/meshgrove/scripts/find_mac_to_ip.sh", mac);
    return get_from_shell(command, mac);
}

int ZINTU_meshgrove_sync_to_slave(void) {
    if (ZINTU_meshgrove_check_is_enabled() == 0) {
        traceVola({Unit::MeshGrove, 155}, "The Meshgrove is NOT enabled. Skip waiting for SSO. \n");
        return 0;
    }
    // An unknown mode (-1) has the bit too: then the settings are pushed all the same.
    if ((ZintuGet_OperMode() & kMasterMode) == 0) {
        traceVola({Unit::MeshGrove, 162}, "The operation mode is NOT Master. Skip waiting for SSO. \n");
        return 0;
    }
    if (!hasSatellite()) {
        traceVola({Unit::MeshGrove, 168}, "The connected slave is NOT exist. Skip waiting for SSO. \n");
        return 0;
    }
    // The daemon reads its pending command when it is signalled: an empty one asks for a sync.
    ZINTU_meshgrove_get_from_shell("gddbc -i -s /runtime/nimbord/sysnotifycmd \"\" ; killall -SIGUSR1 nimbord",
                                   nullptr);
    sleep(kSyncStartSeconds);
    return 0;
}
