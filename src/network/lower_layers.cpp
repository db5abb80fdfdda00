// SPDX-License-Identifier: MIT
// The interface below another one.
#include "frame/lookup.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/request.h"

using namespace frame;
using namespace network;

namespace {

constexpr size_t kLowerLayersSize = 128;

} // namespace

int32_t ZintuGet_LowerLayers(const char *object, char *lowerLayers) {
    if (!object || !lowerLayers) {
        traceError(Spot(), "input param is NULL \n");
        return -1;
    }
    Message message;
    const int code = getObjectForCode(message, object);
    if (code != 0) {
        return traceFailure(code, "faltocal_SendMultiObj is Failure \n");
    }
    if (const char *value = findOrTrace(*message, "LowerLayers")) {
        copyPadded(lowerLayers, kLowerLayersSize, value);
    }
    return 0;
}
