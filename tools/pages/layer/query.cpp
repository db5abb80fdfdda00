// SPDX-License-Identifier: MIT
#include "pages/layer/query.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/layer/code.h"
#include "pages/layer/request_log.h"
#include "pages/text.h"

#include <charconv>
#include <cstdlib>
#include <memory>
#include <new>

namespace pages {
namespace {

struct Release {
    void operator()(MsgHeader *header) const {
        faltocal_finalize(header);
        free(header); // NOLINT(cppcoreguidelines-no-malloc): the library allocates it so
    }
};

class Message {
  public:
    Message(uint32_t mainOper, uint32_t listFlags) : header_(faltocal_createMessage(mainOper, listFlags)) {
        if (!header_ || !header_->objectList) {
            throw std::bad_alloc();
        }
    }

    void add(const Object &object, uint32_t subOper) {
        const uint32_t mainOper = header_->mainOper;
        ObjectNode *node = nullptr;
        faltocal_FillObject(&node, header_->objectList, object.name.c_str(), mainOper, subOper, header_->listFlags);
        if (!node) {
            throw std::bad_alloc();
        }
        for (const Parameter &parameter : object.parameters) {
            faltocal_FillParam(&node, mainOper, parameter.name.c_str(), 0, parameter.value.c_str());
        }
        for (const Parameter &filter : object.filters) {
            faltocal_AddFilter(&node, filter.name.c_str(), filter.value.c_str());
        }
    }

    void send(bool storeOnly, const std::vector<Object> &objects) {
        const RequestLog log;
        const int code = storeOnly ? faltocal_sendQuery_ToDb(header_.get()) : faltocal_sendQuery(header_.get());
        if (code != 0) {
            throw failureOf(code, log.reason(), objects);
        }
    }

    [[nodiscard]] std::vector<Object> objects() const {
        std::vector<Object> result;
        const MsgHeader *header = header_.get();
        for (const ObjectNode *node = caltofal_nextObject(header, nullptr); node;
             node = caltofal_nextObject(header, node)) {
            Object &object = result.emplace_back(Object{text(node->name)});
            for (const ParamNode *param = caltofal_nextParam(node, nullptr); param;
                 param = caltofal_nextParam(node, param)) {
                object.parameters.push_back({text(param->name), text(param->value)});
            }
        }
        return result;
    }

  private:
    // The layer's own words name the culprit; without them all objects are named.
    static Failure failureOf(int code, const std::string &reason, const std::vector<Object> &objects) {
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

    std::unique_ptr<MsgHeader, Release> header_;
};

} // namespace

std::vector<Object> get(const std::vector<Object> &objects, Reading reading) {
    Message message(CALTOFAL_OPER_GET, static_cast<uint32_t>(reading));
    for (const Object &object : objects) {
        message.add(object, CALTOFAL_SUBOPER_GET);
    }
    message.send(false, objects);
    return message.objects();
}

std::vector<Object> change(const std::vector<Object> &objects, Change what, bool storeOnly) {
    Message message(CALTOFAL_OPER_SET, SOPT_OBJVALUE);
    for (const Object &object : objects) {
        message.add(object, static_cast<uint32_t>(what));
    }
    message.send(storeOnly, objects);
    return message.objects();
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
