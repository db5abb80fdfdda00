// SPDX-License-Identifier: MIT
#include "wifi/settings/snapshot.h"

#include "frame/message.h"
#include "frame/range.h"
#include "wifi/settings/param_table.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace wifi {

std::string_view findKept(const Snapshot &snapshot, const char *name) {
    const size_t length = strnlen(name, kLongestName + 1);
    if (length > kLongestName) {
        return {};
    }
    const NameIndex &index = snapshot.index;
    for (uint8_t i = index.first[length]; i < index.first[length + 1]; ++i) {
        const char *kept = snapshot.names + snapshot.nameAt[index.order[i]];
        // The first letter spares most calls: without it, the radio snapshot misses its limit (1.253 of 1.25).
        if (*kept == *name && memcmp(kept, name, length) == 0) {
            return {kept, length};
        }
    }
    return {};
}

void keepSettings(const Snapshot &snapshot, const MsgHeader &answer, WifiParamTable *table) {
    if (!table) {
        return;
    }
    for (ObjectNode &object : objects(answer)) {
        const std::string_view objectName = object.name;
        for (const ParamNode &param : params(object)) {
            const std::string_view name = findKept(snapshot, param.name);
            if (name.data()) {
                appendRow(*table, objectName, name, param.value);
            }
        }
    }
}

namespace {

// Asks for `count` parameters, whose names stand one behind the other. A variable argument list has a fixed length: as
// many names as the longest step has are passed, of which the request reads the first `count`.
int ask(MsgHeader *message, const char *path, const char *names, int count) {
    constexpr int kMostNames = 16;
    const char *name[kMostNames] = {};
    for (int i = 0; i < count; ++i) {
        name[i] = names;
        names += strlen(names) + 1;
    }
    return faltocal_send_main_multi_obj(message, path, "get_leaf_node", "get", count, name[0], name[1], name[2],
                                        name[3], name[4], name[5], name[6], name[7], name[8], name[9], name[10],
                                        name[11], name[12], name[13], name[14], name[15]);
}

// Queues one object after another and sends them with the last.
int askAll(const Snapshot &snapshot, MsgHeader *message, int own, int accessPoint) {
    const uint16_t *nameAt = snapshot.nameAt;
    int result = 0;
    for (uint8_t i = 0; i < snapshot.stepCount && result != -1; ++i) {
        const Step &step = snapshot.steps[i];
        const int instance = step.instance == Instance::Own ? own : accessPoint;
        result = ask(message, ObjectPath(step.table, instance, step.rest), snapshot.names + *nameAt, step.count);
        nameAt += step.count;
    }
    return result;
}

int take(const Snapshot &snapshot, int own, int accessPoint, WifiParamTable *table, const char *function) {
    Message message;
    const int result = askAll(snapshot, message, own, accessPoint);
    if (!(*message).objectList) {
        message.leave(); // there is nothing to release
    }
    if (result == -1) {
        traceFailedRequest({__LINE__, function});
    } else {
        keepSettings(snapshot, *message, table);
    }
    return result;
}

} // namespace
} // namespace wifi

int GetSsIdInfoFromFapiToBuff(int ssidIndex, WifiParamTable *table) {
    traceStart();
    return take(kSsidSnapshot, ssidIndex, ssidIndex, table, __func__);
}

int GetWireInfoFromFapiToBuff(int radioIndex, WifiParamTable *table) {
    traceStart();
    const int result = take(kRadioSnapshot, radioIndex, ConvSsidIdxToFapi(radioIndex, 0), table, __func__);
    traceVola(Unit::WifiUtil, "return [%d] \n", result);
    return result;
}
