// SPDX-License-Identifier: MIT
// Requests of one object, built from keywords and sent at once.
#include "frame/arguments.h"
#include "frame/help_objlist.h"
#include "frame/keyword.h"

using namespace frame;

namespace {

using Sender = int (*)(MsgHeader *);

int sendOne(const Request &request, Arguments arguments, uint32_t owner, Sender send) {
    const uint32_t main = mainOperation(request.mainOper);
    if (main == 0) {
        return -1;
    }
    HELP_CREATE_OBJ(request.message, main, SOPT_OBJVALUE, owner);
    const uint32_t sub = subOperation(request.subOper);
    if (sub == 0) {
        return -1;
    }
    ObjectNode *node = nullptr;
    faltocal_FillObject(&node, request.message->objectList, request.object, main, sub, SOPT_OBJVALUE);
    if (main == CALTOFAL_OPER_SET) {
        for (int i = 0; i < request.count; ++i) {
            const char *name = arguments.next();
            HELP_PARAM_SET(node, name, arguments.next());
        }
    } else if (main == CALTOFAL_OPER_GET) {
        for (int i = 0; i < request.count; ++i) {
            HELP_PARAM_GET(node, arguments.next(), SOPT_OBJVALUE);
        }
    }
    return send(request.message) == 0 ? 0 : -1;
}

} // namespace

int faltocal_send_main(MsgHeader *message, const char *object, const char *mainOper, const char *subOper, int count,
                       ...) {
    va_list list;
    va_start(list, count);
    const int result = sendOne({message, object, mainOper, subOper, count}, Arguments(&list), CALTOFAL_OWNER_SINGLE,
                               faltocal_sendQuery);
    va_end(list);
    return result;
}

int faltocal_send_main_ToDb(MsgHeader *message, const char *object, const char *mainOper, const char *subOper,
                            int count, ...) {
    va_list list;
    va_start(list, count);
    const int result = sendOne({message, object, mainOper, subOper, count}, Arguments(&list), CALTOFAL_OWNER_STORE,
                               faltocal_sendQuery_ToDb);
    va_end(list);
    return result;
}
