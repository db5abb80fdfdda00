// SPDX-License-Identifier: MIT
// Whether the bridge of an IPTV set-top box is in use.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr int kUnknown = -1;

struct State {
    int enable = kUnknown;
    int iptv = kUnknown;
};

void insertDot(ObjectNode &object) {
    if (strnlen(object.name, sizeof(object.name)) < sizeof(object.name) - 1) {
        zintu_InsertDotEndofObj(object.name);
    }
}

void takeBridge(ObjectNode &bridge, State &state) {
    enum : uint8_t { kDescription, kMemberPort, kCount };
    constexpr const char *kNames[kCount] = {"Description", "MemberPort"};
    const char *values[kCount];
    findOrTrace(bridge, kNames, values);
    if (values[kDescription] && values[kMemberPort] && beginsWith(values[kDescription], "IPTV")) {
        state.iptv = *values[kMemberPort] ? 1 : 0;
    }
}

void take(ObjectNode &object, State &state) {
    insertDot(object);
    if (beginsWith(object.name, "Device.X_ZINTU_Multi_Bridge.Bridge.")) {
        takeBridge(object, state);
    } else if (beginsWith(object.name, "Device.X_ZINTU_Multi_Bridge.")) {
        if (const char *enable = findOrTrace(object, "Enable")) {
            state.enable = isOn(enable) ? 1 : 0;
        }
    }
}

} // namespace

int32_t Zintu_isEnabledIptvStb(void) {
    Message message;
    const int code = getObject(message, "Device.X_ZINTU_Multi_Bridge.");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure\n", 1811);
    }
    State state;
    for (ObjectNode &object : objects(*message)) {
        take(object, state);
    }
    if (state.enable == kUnknown) {
        return kUnknown;
    }
    if (state.enable == 1 && state.iptv == 1) {
        return 1;
    }
    return state.iptv == kUnknown ? kUnknown : 0;
}
