// SPDX-License-Identifier: MIT
#include "body.h"

#include "refusal.h"
#include "request.h"

#include <algorithm>
#include <set>

namespace web {
namespace {

Refusal badRequest(const std::string &message) {
    return {Status::BadRequest, message};
}

// Watches a text being parsed. The parser itself would take any depth, and the last of two equal members.
class Watch {
  public:
    bool operator()(int depth, Json::parse_event_t event, const Json &parsed) {
        if (depth >= kDepthMax && (event == Json::parse_event_t::object_start || //
                                   event == Json::parse_event_t::array_start)) {
            throw badRequest("the body is nested deeper than " + std::to_string(kDepthMax) + " levels");
        }
        if (event == Json::parse_event_t::object_start) {
            names_.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            names_.pop_back();
        } else if (event == Json::parse_event_t::key && !names_.back().insert(parsed.get<std::string>()).second) {
            throw badRequest("\"" + parsed.get<std::string>() + "\" is given twice");
        }
        return true;
    }

  private:
    std::vector<std::set<std::string>> names_;
};

std::string valueText(const std::string &name, const Json &value) {
    if (value.is_boolean() || value.is_number()) {
        return value.dump();
    }
    if (!value.is_string()) {
        throw badRequest(name + ": a value is a text, a number, true or false");
    }
    const auto &text = value.get_ref<const std::string &>();
    if (text.find('\0') != std::string::npos) {
        throw badRequest(name + ": a text cannot hold a NUL");
    }
    return text;
}

// The parser's words without its own name and number: "[json.exception.parse_error.101] parse error at line ...".
std::string wordsOf(const std::exception &error) {
    const std::string_view text = error.what();
    const size_t bracket = text.find("] ");
    return std::string(bracket == std::string_view::npos ? text : text.substr(bracket + 2));
}

} // namespace

Json parseBody(std::string_view body) {
    if (body.empty()) {
        return Json::object();
    }
    Watch watch;
    Json parsed;
    try {
        parsed = Json::parse(
            body, [&](int depth, Json::parse_event_t event, const Json &value) { return watch(depth, event, value); });
    } catch (const Json::exception &error) {
        throw badRequest("the body is not JSON: " + wordsOf(error));
    }
    if (!parsed.is_object()) {
        throw badRequest("the body is not a JSON object");
    }
    return parsed;
}

std::vector<Assignment> assignmentsOf(const Json &object) {
    std::vector<Assignment> result;
    for (const auto &[name, value] : object.items()) {
        if (name.empty() || name.find_first_of({"=\0", 2}) != std::string::npos) {
            throw badRequest("a parameter's name is empty, or holds an equals sign or a NUL");
        }
        result.push_back({name, valueText(name, value)});
    }
    if (result.empty()) {
        throw badRequest("there is nothing to set: give {\"NAME\": VALUE}");
    }
    return result;
}

std::vector<ObjectChange> objectChangesOf(const Json &object) {
    std::vector<ObjectChange> result;
    for (const auto &[path, values] : object.items()) {
        if (!path.starts_with("Device.") || path.find('\0') != std::string::npos) {
            throw badRequest("\"" + path + "\" is not a path below Device.");
        }
        if (!values.is_object()) {
            throw badRequest(path + ": give {\"NAME\": VALUE}");
        }
        result.push_back({path, assignmentsOf(values)});
    }
    if (result.empty()) {
        throw badRequest("there is nothing to set: give {\"Device.OBJECT.\": {\"NAME\": VALUE}}");
    }
    return result;
}

std::string textOf(const Json &object, const char *name) {
    const auto found = object.find(name);
    if (found == object.end()) {
        return {};
    }
    if (!found->is_string()) {
        throw badRequest(std::string(name) + " is not a text");
    }
    return valueText(name, *found);
}

void allowMembers(const Json &object, std::initializer_list<std::string_view> names) {
    for (const auto &[name, value] : object.items()) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            throw badRequest("\"" + name + "\" is not understood here");
        }
    }
}

} // namespace web
