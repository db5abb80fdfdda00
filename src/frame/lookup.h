// SPDX-License-Identifier: MIT
// Finding values in an answer.
#pragma once

#include "caltofal.h"
#include "frame/range.h"

#include <cstring>
#include <span>

namespace frame {

// Parameter names are equal when they agree up to their end or over this many characters.
inline constexpr size_t kNameLimit = 256;

// Whether two parameter names are equal. Most differ in the first letter: with a call for each of them, the default WAN
// costs 1.88 times its floor, where its limit is 1.51.
inline bool sameName(const char *left, const char *right) {
    return *left == *right && strncmp(left, right, kNameLimit) == 0;
}

// Whether a parameter has a name that the compiler knows: as sameName(), without a call. With calls the DSL line misses
// its limit.
template <size_t Size>
bool isNamed(const ParamNode &param, const char (&name)[Size]) {
    static_assert(Size <= sizeof(param.name));
    return memcmp(param.name, name, Size) == 0;
}

// Calls `take` with every value of a parameter, in order: in an object, or in all objects of an answer. A call, not a
// range: as a range of values it takes 270 bytes more on MIPS and 160 instructions more on the DSL page.
template <size_t Size, class Take>
void forEachValue(ObjectNode &object, const char (&name)[Size], Take take) {
    for (const ParamNode &param : params(object)) {
        if (isNamed(param, name)) {
            take(param.value);
        }
    }
}
template <size_t Size, class Take>
void forEachValue(const MsgHeader &answer, const char (&name)[Size], Take take) {
    for (ObjectNode &object : objects(answer)) {
        forEachValue(object, name, take);
    }
}

// The value of the object's first parameter of that name, or nullptr.
const char *findValue(ObjectNode &object, const char *name);

// The value of the last parameter of that name in an object; in an answer, of the objects whose names begin
// with `objectBegins`. `otherwise` when there is none.
const char *lastValue(ObjectNode &object, const char *name, const char *otherwise);
const char *lastValue(const MsgHeader &answer, const char *name, const char *otherwise = "",
                      const char *objectBegins = "");

// The first value of a parameter in the objects of an answer, or nullptr.
const char *findValue(const MsgHeader &answer, const char *name);

// As findValue(), through zintu_GetParamFromObjUnit(): each object that has no such parameter is traced to the console.
const char *findOrTrace(ObjectNode &object, const char *name);
const char *findOrTrace(const MsgHeader &answer, const char *name);

// The object's value of each name, or nullptr with a trace, into `values`, which has as many entries as `names`.
void findOrTrace(ObjectNode &object, std::span<const char *const> names, const char **values);

} // namespace frame
