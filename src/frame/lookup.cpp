// SPDX-License-Identifier: MIT
#include "frame/lookup.h"

#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"

#include <cstring>

namespace frame {
namespace {

void traceMissing(const char *name) {
    traceVola({Unit::FaltoCal, 1357, "zintu_GetParamFromObjUnit"}, "Can't find Param(%s) in Obj\n", name);
}

} // namespace

const char *findValue(ObjectNode &object, const char *name) {
    for (const ParamNode &param : params(object)) {
        if (sameName(param.name, name)) {
            return param.value;
        }
    }
    return nullptr;
}

const char *lastValue(ObjectNode &object, const char *name, const char *otherwise) {
    const char *value = otherwise;
    for (const ParamNode &param : params(object)) {
        if (sameName(param.name, name)) {
            value = param.value;
        }
    }
    return value;
}

const char *lastValue(const MsgHeader &answer, const char *name, const char *otherwise, const char *objectBegins) {
    const char *value = otherwise;
    for (ObjectNode &object : objects(answer)) {
        if (beginsWith(object.name, objectBegins)) {
            value = lastValue(object, name, value);
        }
    }
    return value;
}

const char *findValue(const MsgHeader &answer, const char *name) {
    for (ObjectNode &object : objects(answer)) {
        if (const char *value = findValue(object, name)) {
            return value;
        }
    }
    return nullptr;
}

const char *findOrTrace(ObjectNode &object, const char *name) {
    const char *value = nullptr;
    zintu_GetParamFromObjUnit(&object, name, &value);
    return value;
}

const char *findOrTrace(const MsgHeader &answer, const char *name) {
    for (ObjectNode &object : objects(answer)) {
        if (const char *value = findOrTrace(object, name)) {
            return value;
        }
    }
    return nullptr;
}

void findOrTrace(ObjectNode &object, std::span<const char *const> names, const char **values) {
    for (size_t i = 0; i < names.size(); ++i) {
        values[i] = findOrTrace(object, names[i]);
    }
}

} // namespace frame

using namespace frame;

int caltofal_paramValue_get(ObjectNode *objectList, const char *objectPart, const char *paramName, char **out) {
    constexpr size_t kCompared = 128;
    constexpr size_t kValueSize = 128;
    for (ObjectNode &object : objects(objectList)) {
        if (!strstr(object.name, objectPart)) {
            continue;
        }
        for (const ParamNode &param : params(object)) {
            // As in sameName(): without the first letter, "get" costs 3.02 times its floor, where its limit is 1.33.
            if (*param.name == *paramName && strncmp(param.name, paramName, kCompared) == 0) {
                copyText(*out, kValueSize, param.value);
                return 0;
            }
        }
    }
    return -1;
}

int zintu_GetParamFromObjUnit(ObjectNode *object, const char *paramName, const char **out) {
    if (!object || !paramName || !*paramName || !out) {
        traceVola({Unit::FaltoCal, 1347}, "invalid parameter\n");
        return -1;
    }
    const char *value = findValue(*object, paramName);
    if (!value) {
        traceMissing(paramName);
        return -1;
    }
    *out = value;
    return 0;
}
