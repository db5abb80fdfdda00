// SPDX-License-Identifier: MIT
// The MAC filter table of an SSID, one entry a call.
#include "frame/lookup.h"
#include "frame/text.h"
#include "wifi/cut_copy.h"
#include "wifi/wifi_trace.h"

#include <cstring>
#include <iterator>

using namespace frame;
using namespace wifi;

namespace {

// The instance number's text after the table's path and its dot; "" when the name is too short to have one.
const char *instanceText(const char *objectName, const char *prefix) {
    const size_t start = strlen(prefix) + 1;
    return strlen(objectName) > start ? objectName + start : "";
}

// Fills an entry; whether the object had both texts.
bool fillEntry(ObjectNode &object, MacAccessEntry &entry) {
    const char *name = lastValue(object, "name", nullptr);
    const char *address = lastValue(object, "macAddress", nullptr);
    if (name) {
        copyCut(entry.name, name);
    }
    if (address) {
        copyCut(entry.macAddress, address);
    }
    return name && address;
}

} // namespace

int GetMacAccessList(ObjectNode *objectNode, const char *prefix, MacAccessList *list) {
    if (!objectNode || !prefix || !list) {
        return -1;
    }
    char name[256];
    copyText(name, objectNode->name);
    const char *instance = instanceText(name, prefix);
    const int index = number(instance);
    traceVola(Unit::WifiUtil, "\n\n>>>>>>>>>> ssid %s:%s:%s.:%d<<<<<<<<<<<<<\n\n", name, instance, prefix, index);
    if (list->count >= 0 && list->count < static_cast<int32_t>(std::size(list->entries))) {
        MacAccessEntry &entry = list->entries[list->count];
        entry.index = index;
        if (fillEntry(*objectNode, entry)) {
            ++list->count;
        }
    }
    return -1;
}
