// SPDX-License-Identifier: MIT
#include "pages/json.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <nlohmann/json.hpp>

namespace pages {
namespace {

using Json = nlohmann::ordered_json;

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

Value fromJson(std::string_view text, int depthMax) {
    const auto shallow = [&](int depth, Json::parse_event_t /*event*/, const Json & /*parsed*/) {
        if (depth > depthMax) {
            throw Usage("the JSON is nested deeper than " + std::to_string(depthMax) + " levels");
        }
        return true;
    };
    try {
        return valueOf(Json::parse(text.begin(), text.end(), shallow));
    } catch (const Json::parse_error &error) {
        const std::string where = error.byte > text.size() ? "the end" : "byte " + std::to_string(error.byte);
        throw Usage("the text is not JSON: mistake at " + where);
    }
}

} // namespace pages
