// SPDX-License-Identifier: MIT
// How many clients a radio serves.
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/range.h"
#include "frame/text.h"
#include "wifi/convert/wrap.h"
#include "wifi/object_path.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr int kSsidsOfRadio = 8;
constexpr size_t kTextSize = 127; // the last byte of the field stays unused

// What an answer says about one SSID.
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

void take(const ParamNode &param, Ssid &ssid, char *lowerLayers) {
    if (sameName(param.name, "Enable")) {
        ssid.enabled = ConvStrToBool(param.value) != 0;
    } else if (sameName(param.name, "X_ZINTU_Active")) {
        ssid.active = ConvStrToBool(param.value) != 0;
    } else if (sameName(param.name, "LowerLayers")) {
        copyText(lowerLayers, kTextSize, param.value);
    } else if (sameName(param.name, "AssociatedDeviceNumberOfEntries")) {
        ssid.clients = ConvInt(param.value);
    }
}

Ssid read(const MsgHeader &answer, char *lowerLayers) {
    Ssid ssid;
    for (ObjectNode &object : objects(answer)) {
        for (const ParamNode &param : params(object)) {
            take(param, ssid, lowerLayers);
        }
    }
    return ssid;
}

// Starts over for the next SSID. A message without a list is not released here, only when it is the last.
void restart(Message &message) {
    if ((*message).objectList) {
        message.reset();
    } else {
        *message.header() = {};
    }
}

} // namespace

int GetAssociatedDeviceNumberOfEntries(int radioIndex) {
    traceStart();
    if (radioIndex != 1 && radioIndex != 2) {
        return 0;
    }
    ObjectPath radio(Table::Radio, radioIndex, ".");
    // Kept from one SSID to the next: one that does not name its radio counts as its predecessor does.
    char lowerLayers[128] = "";
    int total = 0;
    Message message;
    for (int i = 0; i < kSsidsOfRadio; ++i) {
        restart(message);
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
