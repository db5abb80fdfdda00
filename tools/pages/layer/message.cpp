// SPDX-License-Identifier: MIT
#include "pages/layer/message.h"

#include "pages/text.h"

#include <cstdlib>
#include <new>

namespace pages {

void Message::Release::operator()(MsgHeader *header) const {
    faltocal_finalize(header);
    free(header); // NOLINT(cppcoreguidelines-no-malloc): the library allocates it so
}

Message::Message(uint32_t mainOper, uint32_t listFlags) : header_(faltocal_createMessage(mainOper, listFlags)) {
    if (!header_ || !header_->objectList) {
        throw std::bad_alloc();
    }
}

void Message::add(const Object &object, uint32_t subOper) {
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

std::vector<Object> objectsOf(const MsgHeader &message) {
    std::vector<Object> result;
    for (const ObjectNode *node = nullptr; (node = caltofal_nextObject(&message, node));) {
        Object &object = result.emplace_back(Object{text(node->name)});
        for (const ParamNode *param = nullptr; (param = caltofal_nextParam(node, param));) {
            object.parameters.push_back({text(param->name), text(param->value)});
        }
    }
    return result;
}

} // namespace pages
