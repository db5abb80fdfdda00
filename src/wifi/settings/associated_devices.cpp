// SPDX-License-Identifier: MIT
// How many clients a radio serves.
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/range.h"
#include "frame/text.h"
#include "wifi/convert/wrap.h"
#include "wifi/cut_copy.h"
#include "wifi/object_path.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr int kSsidsOfRadio = 8;

// What the layer answers about one SSID.
struct Ssid {
    bool enabled = false;
    bool active = false;
    int clients = 0;
};

bool ask(MsgHeader *message, int ssid) {
    return faltocal_send_main_multi_obj(message, ObjectPath(Table::Ssid, ssid, "&"), "get_leaf_node", "get", 3,
                                        "Enable", "X_ZINTU_Active", "LowerLayers") != -1 &&
           faltocal_send_main_multi_obj(message, ObjectPath(Table::AccessPoint, ssid), "get_leaf_node", "get", 1,
                                        "AssociatedDeviceNumberOfEntries") != -1;
}

void take(const ParamNode &param, Ssid &ssid, char (&lowerLayers)[128]) {
    if (sameName(param.name, "Enable")) {
        ssid.enabled = ConvStrToBool(param.value) != 0;
    } else if (sameName(param.name, "X_ZINTU_Active")) {
        ssid.active = ConvStrToBool(param.value) != 0;
    } else if (sameName(param.name, "LowerLayers")) {
        copyCut(lowerLayers, param.value);
    } else if (sameName(param.name, "AssociatedDeviceNumberOfEntries")) {
        ssid.clients = number(param.value);
    }
}

Ssid read(const MsgHeader &answer, char (&lowerLayers)[128]) {
    Ssid ssid;
    for (ObjectNode &object : objects(answer)) {
        for (const ParamNode &param : params(object)) {
            take(param, ssid, lowerLayers);
        }
    }
    return ssid;
}

} // namespace

int GetAssociatedDeviceNumberOfEntries(int radioIndex) {
    traceStart();
    if (radioIndex != 1 && radioIndex != 2) {
        return 0;
    }
    ObjectPath radio(Table::Radio, radioIndex, ".");
    // Kept from one SSID to the next: one that does not name its radio counts as the SSID before it.
    char lowerLayers[128] = "";
    int total = 0;
    Message message;
    for (int i = 0; i < kSsidsOfRadio; ++i) {
        if ((*message).objectList) { // without a list, only the last message is released
            message.reset();
        }
        if (!ask(message, ConvSsidIdxToFapi(radioIndex, i))) {
            traceFailedRequest();
            break;
        }
        const Ssid ssid = read(*message, lowerLayers);
        if (ssid.enabled && ssid.active && strcmp(lowerLayers, radio) == 0) {
            total = wrappingAdd(total, ssid.clients);
        }
    }
    return total;
}
