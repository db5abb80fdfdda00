// SPDX-License-Identifier: MIT
// DSL line 1 and channel 1.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/field_tables.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

// Judged in the field after the copy: what a longer earlier text left behind counts too.
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

void fillLine(ObjectNode &line, const Fields &fields, ZintuDslLineInfo &info) {
    for (const ParamNode &param : params(line)) {
        if (!fields.filter.mayHold(param.name)) {
            continue;
        }
        if (isNamed(param, "Status")) {
            storeStatus(param.value, info.sStatus);
        } else {
            fill(param, fields, info, Empty::Skip);
        }
    }
}

// 0, or -1 with a trace of the caller's line.
int read(const char *object, const Fields &fields, bool isLine, ZintuDslLineInfo &info, int line = __builtin_LINE(),
         const char *function = __builtin_FUNCTION()) {
    Message message;
    const int code = getObject(message, object);
    if (code != 0) {
        return failed(code, "faltocal_SendMultiObj is Failure \n", line, function);
    }
    for (ObjectNode &answer : objects(*message)) {
        if (isLine) {
            fillLine(answer, fields, info);
        } else {
            fill(answer, fields, info, Empty::Skip);
        }
    }
    return 0;
}

} // namespace

int32_t ZintuGet_LineInfo(ZintuDslLineInfo *info) {
    const bool done = read("Device.DSL.Line.1.", Fields(kDslLine).with("Status"), true, *info) == 0 &&
                      read("Device.DSL.Channel.1.", kDslChannel, false, *info) == 0 &&
                      read("Device.DSL.Line.1.TestParams.", kDslTestParams, false, *info) == 0 &&
                      read("Device.DSL.Channel.1.Stats.Total.", kDslTotals, false, *info) == 0;
    return done ? 0 : -1;
}
