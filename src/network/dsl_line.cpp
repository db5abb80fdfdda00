// SPDX-License-Identifier: MIT
// DSL line 1 and channel 1.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/pages.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

// Looks for "Up" in the field, not in the value: what is left of a longer text that the field held counts too.
void storeStatus(const char *value, char (&status)[16]) {
    if (strlen(value) >= sizeof(status)) {
        return;
    }
    copyExact(status, sizeof(status), value);
    if (contains(Terminated(status), "Up")) {
        writeWord(status, "connected");
    } else {
        writeWord(status, "disconnected");
    }
}

// Fills the page of the line, as fetch() does, and stores "Status".
int fetchLine(ZintuDslLineInfo &info, const char *failure, Spot spot = Spot()) {
    Message message;
    const int code = getObject(message, kDslLine.object());
    if (code != 0) {
        return traceFailure(code, failure, spot);
    }
    for (ObjectNode &line : objects(*message)) {
        // Two walks take fewer instructions than one that looks for the row and the status of each parameter.
        fill(line, kDslLine, info);
        forEachValue(line, "Status", [&info](const char *value) { storeStatus(value, info.sStatus); });
    }
    return 0;
}

} // namespace

int32_t ZintuGet_LineInfo(ZintuDslLineInfo *info) {
    constexpr char kFailure[] = "faltocal_SendMultiObj is Failure \n"; // the text of each of the four requests
    if (fetchLine(*info, kFailure) != 0) {
        return -1;
    }
    if (fetch(kDslChannel, *info, kFailure) != 0) {
        return -1;
    }
    if (fetch(kDslTestParams, *info, kFailure) != 0) {
        return -1;
    }
    return fetch(kDslTotals, *info, kFailure);
}
