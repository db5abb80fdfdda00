// SPDX-License-Identifier: MIT
// The JSON bodies of changes, taken apart into what the pages understand.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace web {

using Json = nlohmann::ordered_json;

// One value that is to be written, as the text that the configuration layer takes.
struct Assignment {
    std::string name, value;
};

struct ObjectChange {
    std::string path;
    std::vector<Assignment> values;
};

// The object that a body holds; an empty body is an empty object. Throws Refusal (400) where it is no JSON, no object,
// deeper than kDepthMax, or has a member twice.
Json parseBody(std::string_view body);

// {"NAME": VALUE, ...}, at least one. Texts stay, numbers and flags become texts. Throws Refusal (400) for other values
// and for texts with a NUL.
std::vector<Assignment> assignmentsOf(const Json &object);

// {"Device.A.": {"NAME": VALUE, ...}, ...}. Throws Refusal (400).
std::vector<ObjectChange> objectChangesOf(const Json &object);

// A text member, "" where it is not there. Throws Refusal (400) where it is another type.
std::string textOf(const Json &object, const char *name);

// Throws Refusal (400) when the object has a member besides those.
void allowMembers(const Json &object, std::initializer_list<std::string_view> names);

} // namespace web
