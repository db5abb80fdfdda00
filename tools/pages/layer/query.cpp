// SPDX-License-Identifier: MIT
#include "pages/layer/query.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/layer/code.h"
#include "pages/layer/message.h"
#include "pages/layer/request_log.h"
#include "pages/text.h"

#include <charconv>

namespace pages {
namespace {

// The layer's own words name the culprit; without them all objects are named.
Failure failureOf(int code, const std::string &reason, const std::vector<Object> &objects) {
    std::string names;
    std::string named;
    for (const Object &object : objects) {
        names += (names.empty() ? "" : ", ") + object.name;
        const bool isNamed = reason.starts_with(withoutDot(object.name));
        if (isNamed && object.name.size() > named.size()) {
            named = object.name;
        }
    }
    const std::string message = reason.empty() ? names + ": " + meaningOf(code) : reason;
    return {categoryOf(code), message, named.empty() ? names : named, code};
}

void send(const Message &message, bool storeOnly, const std::vector<Object> &objects) {
    const RequestLog log;
    const int code = storeOnly ? faltocal_sendQuery_ToDb(message.header()) : faltocal_sendQuery(message.header());
    if (code != 0) {
        throw failureOf(code, log.reason(), objects);
    }
}

} // namespace

std::vector<Object> get(const std::vector<Object> &objects, Reading reading) {
    Message message(CALTOFAL_OPER_GET, static_cast<uint32_t>(reading));
    for (const Object &object : objects) {
        message.add(object, CALTOFAL_SUBOPER_GET);
    }
    send(message, false, objects);
    return objectsOf(*message.header());
}

std::vector<Object> change(const std::vector<Object> &objects, Change what, bool storeOnly) {
    Message message(CALTOFAL_OPER_SET, SOPT_OBJVALUE);
    for (const Object &object : objects) {
        message.add(object, static_cast<uint32_t>(what));
    }
    send(message, storeOnly, objects);
    return objectsOf(*message.header());
}

std::string valueOf(const Object &object, std::string_view parameter) {
    for (const Parameter &candidate : object.parameters) {
        if (candidate.name == parameter) {
            return candidate.value;
        }
    }
    return {};
}

int instanceOf(std::string_view path) {
    const std::string_view name = withoutDot(path);
    int number = 0;
    std::from_chars(name.data() + name.rfind('.') + 1, name.data() + name.size(), number);
    return number;
}

} // namespace pages
