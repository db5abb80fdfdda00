// SPDX-License-Identifier: MIT
#include "pages/json.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <nlohmann/json.hpp>
#include <set>

namespace pages {
namespace {

using Json = nlohmann::ordered_json;
using Event = Json::parse_event_t;

Json jsonOf(const Value &value);

struct Visitor {
    Json operator()(std::monostate /*null*/) const { return {}; }
    template <class Plain>
    Json operator()(const Plain &plain) const {
        return plain;
    }
    Json operator()(const Value::List &list) const {
        Json result = Json::array();
        for (const Value &item : list) {
            result.push_back(jsonOf(item));
        }
        return result;
    }
    Json operator()(const Value::Object &members) const {
        Json result = Json::object();
        for (const auto &[key, value] : members) {
            result.push_back({key, jsonOf(value)});
            if (value.isText() && !isUtf8(value.text())) {
                result.push_back({key + "_hex", hexOf(value.text())});
            }
        }
        return result;
    }
};

Json jsonOf(const Value &value) {
    return value.visit(Visitor());
}

// Watches a text being parsed: the parser itself takes any depth, and the last of two equal members.
class Watch {
  public:
    explicit Watch(int depthMax) : depthMax_(depthMax) {}

    bool operator()(int depth, Event event, const Json &parsed) {
        if (depth >= depthMax_ && (event == Event::object_start || event == Event::array_start)) {
            throw Usage("the JSON is nested deeper than " + std::to_string(depthMax_) + " levels");
        }
        if (event == Event::object_start) {
            names_.emplace_back();
        } else if (event == Event::object_end) {
            names_.pop_back();
        } else if (event == Event::key && !names_.back().insert(parsed.get<std::string>()).second) {
            throw Usage(pages::inQuotes(parsed.get<std::string>()) + " is given twice");
        }
        return true;
    }

  private:
    int depthMax_;
    std::vector<std::set<std::string>> names_;
};

Value valueOf(const Json &json) {
    switch (json.type()) {
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
        return json.get<int64_t>();
    case Json::value_t::number_unsigned:
        return json.get<uint64_t>();
    case Json::value_t::number_float:
        return json.get<double>();
    case Json::value_t::string:
        return json.get<std::string>();
    case Json::value_t::array: {
        Value list = Value::list();
        for (const Json &item : json) {
            list.push(valueOf(item));
        }
        return list;
    }
    case Json::value_t::object: {
        Value object = Value::object();
        for (const auto &[key, item] : json.items()) {
            object[key] = valueOf(item);
        }
        return object;
    }
    default:
        return {};
    }
}

} // namespace

std::string toJson(const Value &value, int indent) {
    return jsonOf(value).dump(indent, ' ', false, Json::error_handler_t::replace);
}

std::string toAsciiJson(const Value &value) {
    return jsonOf(value).dump(-1, ' ', true, Json::error_handler_t::replace);
}

Value fromJson(std::string_view text, int depthMax) {
    Watch watch(depthMax);
    try {
        return valueOf(Json::parse(text.begin(), text.end(), [&](int depth, Event event, const Json &parsed) {
            return watch(depth, event, parsed);
        }));
    } catch (const Json::out_of_range &) {
        throw Usage("the JSON has a number that is too large");
    } catch (const Json::parse_error &error) {
        const std::string where = error.byte > text.size() ? "the end" : "byte " + std::to_string(error.byte);
        throw Usage("the text is not JSON: mistake at " + where);
    }
}

} // namespace pages
