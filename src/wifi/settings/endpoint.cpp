// SPDX-License-Identifier: MIT
// Which endpoint of a repeater is in use.
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/range.h"
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

struct EndPoint {
    char enable[128] = "";
    char ssidReference[128] = "";
};

bool askEndPoints(MsgHeader *message) {
    return faltocal_send_main_multi_obj(message, ObjectPath(Table::EndPoint, 1, "&"), "get_leaf_node", "get", 2,
                                        "Enable", "SSIDReference") != -1 &&
           faltocal_send_main_multi_obj(message, ObjectPath(Table::EndPoint, 2), "get_leaf_node", "get", 2, "Enable",
                                        "SSIDReference") != -1;
}

void take(ObjectNode &object, EndPoint &endPoint) {
    for (const ParamNode &param : params(object)) {
        if (sameName(param.name, "Enable")) {
            copyCut(endPoint.enable, param.value);
        } else if (sameName(param.name, "SSIDReference")) {
            copyCut(endPoint.ssidReference, param.value);
        }
    }
}

// Names are compared by their beginning: instance 10 counts as instance 1.
void read(const MsgHeader &answer, EndPoint (&endPoints)[2]) {
    ObjectPath first(Table::EndPoint, 1);
    ObjectPath second(Table::EndPoint, 2);
    for (ObjectNode &object : objects(answer)) {
        if (beginsWith(object.name, first)) {
            take(object, endPoints[0]);
        } else if (beginsWith(object.name, second)) {
            take(object, endPoints[1]);
        }
    }
}

int firstEnabled(const EndPoint (&endPoints)[2]) {
    for (int i = 0; i < 2; ++i) {
        if (strcmp(endPoints[i].enable, "true") == 0) {
            return i + 1;
        }
    }
    return kNoneEnabled;
}

void copyName(const MsgHeader &answer, char *out) {
    *out = '\0';
    for (ObjectNode &object : objects(answer)) {
        for (const ParamNode &param : params(object)) {
            if (sameName(param.name, "Name")) {
                copyText(out, kNameSize, param.value);
            }
        }
    }
}

} // namespace

int GetEPEnable(char *ifnameOut) {
    Message message;
    if (!askEndPoints(message)) {
        traceFailedRequest();
        return 0;
    }
    EndPoint endPoints[2];
    read(*message, endPoints);
    const int result = firstEnabled(endPoints);
    if (result == kNoneEnabled || !ifnameOut) {
        return result;
    }
    message.reset();
    if (faltocal_send_main_multi_obj(message, endPoints[result - 1].ssidReference, "get_leaf_node", "get", 1, "Name") ==
        -1) {
        traceFailedRequest();
    } else {
        copyName(*message, ifnameOut);
    }
    return result;
}

int GetEPConnectionStatus(char *macOut) {
    char ifname[128] = "";
    return GetEPEnable(ifname) == kNoneEnabled ? 0 : GetEPContection(ifname, macOut);
}
