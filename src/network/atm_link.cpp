// SPDX-License-Identifier: MIT
// The first ATM link: its virtual circuit and QoS class.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr size_t kValueSize = 32;

// The object's first value of that name that has 1 to 31 characters, or nullptr.
const char *shortValue(ObjectNode &object, const char *name) {
    for (const ParamNode &param : params(object)) {
        if (sameName(param.name, name) && *param.value && strlen(param.value) < kValueSize) {
            return param.value;
        }
    }
    return nullptr;
}

// "VPI/VCI"; a lone number changes nothing.
void storeCircuit(ZintuWanInfo &info, const char *destination) {
    char pieces[kValueSize] = "";
    copyText(pieces, destination);
    char *rest = nullptr;
    const char *vpi = strtok_r(pieces, "/", &rest);
    const char *vci = strtok_r(nullptr, "/", &rest);
    if (vpi && vci) {
        info.nAtmVpi = number(vpi);
        info.nAtmVci = number(vci);
    }
}

} // namespace

int32_t ZintuGet_AtmInfo(ZintuWanInfo *info) {
    constexpr char kFailure[] = "faltocal_send_main is Failure\n";
    Message message;
    int code = getObject(message, "Device.ATM.Link.1.");
    if (code != 0) {
        return traceFailure(code, kFailure, 1475);
    }
    for (ObjectNode &object : objects(*message)) {
        if (const char *destination = shortValue(object, "DestinationAddress")) {
            storeCircuit(*info, destination);
        }
    }
    message.reset();
    code = getObject(message, "Device.ATM.Link.1.QoS.");
    if (code != 0) {
        return traceFailure(code, kFailure, 1513);
    }
    for (ObjectNode &object : objects(*message)) {
        if (const char *qosClass = shortValue(object, "QoSClass")) {
            copyExact(info->sAtmQoSClass, sizeof(info->sAtmQoSClass), qosClass);
        }
    }
    return 0;
}
