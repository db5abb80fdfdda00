// SPDX-License-Identifier: MIT
// DSL line 1 and channel 1.
#include "field_tables.h"
#include "lookup.h"
#include "range.h"
#include "request.h"
#include "text.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

struct Request {
    const char *object;
    Fields fields;
};

constexpr Request kRequests[] = {
    {"Device.DSL.Line.1.", Fields(kDslLine).with("Status")},
    {"Device.DSL.Channel.1.", kDslChannel},
    {"Device.DSL.Line.1.TestParams.", kDslTestParams},
    {"Device.DSL.Channel.1.Stats.Total.", kDslTotals},
};

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

} // namespace

int32_t ZintuGet_LineInfo(ZintuDslLineInfo *info) {
    for (const Request &request : kRequests) {
        Message message;
        const int code = getObject(message, request.object);
        if (code != 0) {
            return failed(code, "faltocal_SendMultiObj is Failure \n");
        }
        const bool isLine = &request == kRequests;
        for (ObjectNode &object : objects(*message)) {
            if (isLine) {
                fillLine(object, request.fields, *info);
            } else {
                fill(object, request.fields, *info, Empty::Skip);
            }
        }
    }
    return 0;
}
