// SPDX-License-Identifier: MIT
// The enable switch of the roaming mesh.
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/trace.h"

using namespace frame;

namespace {

constexpr char kRoamingMesh[] = "Device.WiFi.X_ZINTU_RoamingMesh.";
constexpr char kEnable[] = "Enable";

// 1 on, 0 off, -1 when the request fails. The message is released before the caller traces more.
int readSwitch() {
    Message message;
    if (faltocal_send_main_multi_obj(message, kRoamingMesh, "get", "get", 1, kEnable) == 0) {
        const char *enable = findValue(*message, kEnable);
        return enable ? atob(enable) : 0;
    }
    traceError({193, "ZINTU_meshgrove_check_is_enabled"},
               "faltocal_send_main_multi_obj function failed with object [%s] param [%s] \n", kRoamingMesh, kEnable);
    return -1;
}

} // namespace

int ZINTU_meshgrove_check_is_enabled(void) {
    const int enabled = readSwitch();
    if (enabled >= 0) {
        return enabled;
    }
    traceVola({Unit::MeshGrove, 210}, "[ERROR] Return [false] \n");
    return 0;
}

int ZINTU_meshgrove_set_enable_value(uint8_t enable) {
    traceVola({Unit::MeshGrove, 296}, "START_FUNCTION : FAL with arg [%d] \n", enable);
    Message message;
    const int result =
        faltocal_send_main_multi_obj(message, kRoamingMesh, "set", "set", 1, kEnable, enable != 0 ? "true" : "false");
    if (result == -1) {
        traceFailedRequest({301});
    }
    return result;
}
