// SPDX-License-Identifier: MIT
// Finding an object by one parameter's value and reading another of its parameters.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/request.h"

using namespace frame;
using namespace network;

namespace {

constexpr size_t kOutputSize = 128;

struct Outcome {
    int code; // what the end line shows
    bool found;
};

constexpr Outcome kError = {-1, false};

Outcome invalidInput(int line) {
    traceError({line, "zintu_GetValueFromDBInfo"}, "invalid input\n");
    return kError;
}

struct Query {
    const char *object, *filterParam, *filterValue, *wantedParam;
};

Outcome find(const Query &query, char *outObjectName, char *outValue) {
    Message message;
    if (!query.object || !query.filterParam || !query.filterValue || !query.wantedParam) {
        return invalidInput(2058);
    }
    if (!outObjectName && !outValue) {
        return invalidInput(2061);
    }
    const int code = getInstances(message, query.object, query.filterParam, query.filterValue);
    if (code == CALTOFAL_NO_MATCH) {
        return {0, false};
    }
    if (code != 0) {
        traceFailure(code, "faltocal_SendMultiObj is Failure\n", {2084, "zintu_GetValueFromDBInfo"});
        return kError;
    }
    for (ObjectNode &object : objects(*message)) {
        const char *value = findOrTrace(object, query.wantedParam);
        if (!value) {
            continue;
        }
        if (outObjectName) {
            copyText(outObjectName, kOutputSize, object.name);
        }
        if (outValue) {
            copyText(outValue, kOutputSize, value);
        }
        return {0, true};
    }
    return {0, false};
}

} // namespace

int32_t zintu_GetValueFromDBInfo(const char *object, const char *filterParam, const char *filterValue,
                                 const char *wantedParam, char *outObjectName, char *outValue) {
    traceVola({Unit::NetworkGet, 2055}, ">>>>>>>>>> Entering <<<<<<<<<<<<<\n");
    const Outcome outcome = find({object, filterParam, filterValue, wantedParam}, outObjectName, outValue);
    traceVola({Unit::NetworkGet, 2090}, ">>>>>>>>>> End(%d %s)  :: <<<<<<<<<<<<<\n", outcome.code,
              outcome.found ? "Found" : "Not Found");
    return outcome.found ? 0 : -1;
}
