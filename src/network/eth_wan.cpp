// SPDX-License-Identifier: MIT
// The IP interface object of the Ethernet WAN.
#include "frame/range.h"
#include "frame/text.h"
#include "network/request.h"

#include <cctype>
#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr size_t kObjectNameSize = 128;
constexpr char kInterfaceTable[] = "Device.IP.Interface";
constexpr size_t kInterfaceTableLength = sizeof(kInterfaceTable) - 1;

// Whether a name is that of an interface itself, not of an object below it.
bool isInterface(const char *name) {
    if (!beginsWith(name, kInterfaceTable)) {
        return false;
    }
    for (const char *c = name + kInterfaceTableLength; *c; ++c) {
        if (isalpha(static_cast<unsigned char>(*c))) {
            return false;
        }
    }
    return true;
}

} // namespace

int32_t ZintuGet_EthWanObjName(char *objName) {
    if (!objName) {
        return -1;
    }
    Message message;
    if (getInstances(message, kInterfaceTable, "Alias", "cpe-EthWan-IPIntf-1") != 0) {
        return -1;
    }
    const char *last = nullptr;
    for (const ObjectNode &object : objects(*message)) {
        if (isInterface(object.name)) {
            last = object.name;
        }
    }
    if (!last) {
        return -1;
    }
    copyText(objName, kObjectNameSize, last);
    return 0;
}
