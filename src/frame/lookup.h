// SPDX-License-Identifier: MIT
// Finding values in an answer.
#pragma once

#include "caltofal.h"

#include <cstring>
#include <span>

namespace frame {

// Parameter names are equal when they agree up to their end or over this many characters.
inline constexpr size_t kNameLimit = 256;

// Whether two parameter names are equal.
inline bool sameName(const char *left, const char *right) {
    return *left == *right && strncmp(left, right, kNameLimit) == 0;
}

// Whether a parameter has a name that the compiler knows: as sameName(), without a call.
template <size_t Size>
bool isNamed(const ParamNode &param, const char (&name)[Size]) {
    static_assert(Size <= sizeof(param.name));
    return memcmp(param.name, name, Size) == 0;
}

// The value of the object's first parameter of that name, or nullptr.
const char *findValue(ObjectNode &object, const char *name);

// The value of the last parameter of that name in an object; in an answer, of the objects whose names begin so.
// `otherwise` when there is none.
const char *lastValue(ObjectNode &object, const char *name, const char *otherwise);
const char *lastValue(const MsgHeader &answer, const char *name, const char *otherwise = "",
                      const char *objectBegins = "");

// Looks several parameters of one object up in one pass, as that many calls of zintu_GetParamFromObjUnit() would: a
// name that is missing is traced, its value is nullptr. `values` has room for each of `names`.
void lookUp(ObjectNode &object, std::span<const char *const> names, const char **values);

// The object's first parameter of that name, or nullptr with a trace.
const char *lookUp(ObjectNode &object, const char *name);

} // namespace frame
