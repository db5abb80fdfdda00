// SPDX-License-Identifier: MIT
// How many clients a radio serves.
#include "frame/lookup.h"
#include "frame/message.h"
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

bool ask(MsgHeader *message, int ssid) {
    return faltocal_send_main_multi_obj(message, ObjectPath(Table::Ssid, ssid, "&"), "get_leaf_node", "get", 3,
                                        "Enable", "X_ZINTU_Active", "LowerLayers") != -1 &&
           faltocal_send_main_multi_obj(message, ObjectPath(Table::AccessPoint, ssid), "get_leaf_node", "get", 1,
                                        "AssociatedDeviceNumberOfEntries") != -1;
}

bool isTrue(const MsgHeader &answer, const char *name) {
    return ConvStrToBool(lastValue(answer, name)) != 0;
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
        if (const char *named = lastValue(*message, "LowerLayers", nullptr)) {
            copyCut(lowerLayers, named);
        }
        if (isTrue(*message, "Enable") && isTrue(*message, "X_ZINTU_Active") && strcmp(lowerLayers, radio) == 0) {
            total = wrappingAdd(total, number(lastValue(*message, "AssociatedDeviceNumberOfEntries")));
        }
    }
    return total;
}
