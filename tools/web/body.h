// SPDX-License-Identifier: MIT
// The JSON bodies of changes, taken apart into what the pages understand. Throws pages::Usage for what they do not.
#pragma once

#include "pages/layer/query.h"
#include "pages/value.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace web {

// The object that a body holds; an empty body is an empty object. Refuses what is no JSON, no object, deeper than
// kDepthMax, or has a member twice.
pages::Value parseBody(std::string_view body);

// {"NAME": VALUE, ...}, at least one. Texts stay, whole numbers and flags become texts; other values are refused, and
// texts with a NUL.
std::vector<pages::Parameter> parametersOf(const pages::Value &object);

// {"Device.A.": {"NAME": VALUE, ...}, ...}.
std::vector<pages::Object> objectsOf(const pages::Value &object);

// A text member, "" where it is not there.
std::string textOf(const pages::Value &object, std::string_view name);

// Refuses an object with a member besides those.
void allowMembers(const pages::Value &object, std::initializer_list<std::string_view> names);

} // namespace web
