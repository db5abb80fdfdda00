// SPDX-License-Identifier: MIT
// The UCI section of a WAN connection.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/request.h"

#include <cstdio>
#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr size_t kSectionSize = 128;

constexpr char kFailure[] = "faltocal_send_main is Failure\n";

// Reads one parameter of one object, the last object that has it winning; false with a trace when the request
// fails, silently when the value is missing or empty.
bool readParam(const char *object, const char *param, char (&value)[kSectionSize], Spot spot = Spot()) {
    Message message;
    const int code = getParam(message, object, param);
    if (code != 0) {
        traceFailure(code, kFailure, spot);
        return false;
    }
    const char *last = nullptr;
    for (ObjectNode &node : objects(*message)) {
        zintu_GetParamFromObjUnit(&node, param, &last);
    }
    if (!last || !*last) {
        return false;
    }
    copyText(value, last);
    return true;
}

// The section of the first connection of that name that has one.
const char *sectionOfConnection(Message &message, const char *connectionName) {
    for (ObjectNode &object : objects(*message)) {
        const char *name = findOrTrace(object, "ConnectionName");
        if (!name || strcmp(name, connectionName) != 0) {
            continue;
        }
        const char *section = findOrTrace(object, "UciSection");
        if (section && *section) {
            return section;
        }
    }
    return nullptr;
}

} // namespace

int32_t ZintuGet_UciSectionByConnMode(const char *connMode, char *uciSection) {
    Message message;
    if (!connMode || !uciSection || !*connMode) {
        return -1;
    }
    const int code = getInstances(message, "Device.X_LANTIQ_COM_NwHardware.WANConnection", "ConnMode", connMode);
    if (code == CALTOFAL_NO_MATCH) {
        return -1;
    }
    if (code != 0) {
        return traceFailure(code, "faltocal_SendMultiObj is Failure\n");
    }
    for (ObjectNode &object : objects(*message)) {
        const char *mode = findOrTrace(object, "ConnMode");
        if (!mode || !beginsWith(mode, connMode)) {
            continue;
        }
        const char *section = findOrTrace(object, "UciSection");
        if (section && *section) {
            copyText(uciSection, kSectionSize, section);
            return 0;
        }
    }
    return -1;
}

int32_t ZintuGet_UciSectionOfDefGw(char *uciSection) {
    if (!uciSection) {
        return -1;
    }
    char interface[kSectionSize];
    char name[kSectionSize];
    if (!readParam("Device.X_ZINTU_CurrentNetwork", "WanIpInterface", interface) ||
        !readParam(interface, "Name", name)) {
        return -1;
    }
    Message message;
    const int code = getObject(message, "Device.X_LANTIQ_COM_NwHardware.WANConnection.");
    if (code != 0) {
        return traceFailure(code, kFailure);
    }
    const char *section = sectionOfConnection(message, name);
    if (!section) {
        return -1;
    }
    copyPadded(uciSection, kSectionSize - 1, section);
    traceVola(Unit::NetworkGet, "%s[%s]\n", "UciSection", section);
    return 0;
}
