// SPDX-License-Identifier: MIT
// The Linux name of the current WAN interface.
#include "frame/lookup.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr char kFunction[] = "zintu_GetWanIfName";

int32_t readName(char *ifName) {
    Message message;
    ZintuWanInfo info = {};
    ZintuGet_DefGw(&info);
    const Terminated interface(info.sWanIpInterface);
    if (!strstr(interface, "Device.IP.Interface.")) {
        traceVola({Unit::NetworkGet, 2035, kFunction}, "ZintuGet_DefGw is Failure \n");
        return -1;
    }
    const int code = getParamForCode(message, interface, "Name");
    if (code != 0) {
        return traceFailure(code, "faltocal_SendMultiObj is Failure \n", {2018, kFunction});
    }
    const char *name = findOrTrace(*message, "Name");
    if (!name || !*name) {
        traceVola({Unit::NetworkGet, 2031, kFunction}, "Can't find WanIfName\n");
        return -1;
    }
    strcpy(ifName, name);
    return 0;
}

} // namespace

int32_t zintu_GetWanIfName(char *ifName) {
    traceVola({Unit::NetworkGet, 2012}, ">>>>>>>>>> Entering <<<<<<<<<<<<<\n");
    const int32_t result = readName(ifName);
    traceVola({Unit::NetworkGet, 2039}, ">>>>>>>>>> End(%d)  :: <<<<<<<<<<<<<\n", result);
    return result;
}
