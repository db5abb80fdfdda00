// SPDX-License-Identifier: MIT
// Which endpoint of a repeater is in use.
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/text.h"
#include "wifi/cut_copy.h"
#include "wifi/object_path.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr int kNoneEnabled = -1;
constexpr size_t kNameSize = 127; // the last byte of the caller's char[128] stays unused

bool askEndPoints(MsgHeader *message) {
    return faltocal_send_main_multi_obj(message, ObjectPath(Table::EndPoint, 1, "&"), "get_leaf_node", "get", 2,
                                        "Enable", "SSIDReference") != -1 &&
           faltocal_send_main_multi_obj(message, ObjectPath(Table::EndPoint, 2), "get_leaf_node", "get", 2, "Enable",
                                        "SSIDReference") != -1;
}

// The first of the two that is enabled, and the text of its reference. Names of objects are compared by their
// beginning: instance 10 counts as instance 1.
int firstEnabled(const MsgHeader &answer, char (&reference)[128]) {
    for (int i = 1; i <= 2; ++i) {
        const ObjectPath endPoint(Table::EndPoint, i);
        if (strcmp(lastValue(answer, "Enable", "", endPoint), "true") == 0) {
            copyCut(reference, lastValue(answer, "SSIDReference", "", endPoint));
            return i;
        }
    }
    return kNoneEnabled;
}

} // namespace

int GetEPEnable(char *ifnameOut) {
    Message message;
    if (!askEndPoints(message)) {
        traceFailedRequest();
        return 0;
    }
    char reference[128];
    const int result = firstEnabled(*message, reference);
    if (result == kNoneEnabled || !ifnameOut) {
        return result;
    }
    message.reset();
    if (faltocal_send_main_multi_obj(message, reference, "get_leaf_node", "get", 1, "Name") == -1) {
        traceFailedRequest();
    } else {
        copyText(ifnameOut, kNameSize, lastValue(*message, "Name"));
    }
    return result;
}

int GetEPConnectionStatus(char *macOut) {
    char ifname[128] = "";
    return GetEPEnable(ifname) == kNoneEnabled ? 0 : GetEPContection(ifname, macOut);
}
