// SPDX-License-Identifier: MIT
// Requests that collect several objects in one message: "&" queues, "query" sends what was queued.
#include "frame/arguments.h"
#include "frame/help_objlist.h"
#include "frame/keyword.h"
#include "frame/trace.h"

#include <algorithm>
#include <cstring>
#include <strings.h>

using namespace frame;

namespace {

constexpr size_t kPathSize = 256;

// Lines that the traces of one request function carry.
struct TraceLines {
    const char *function;
    int unknownMain;
    int unknownSub;
    int failedSend;
};

// The object's path as it is sent: at most 255 characters, and without the "&". Copied only where it is not sent as it
// stands: if all are, the LAN page costs 2.45 times its floor, where its limit is 2.36.
class Path {
  public:
    explicit Path(const char *object) : text_(object) {
        const char *end = strchrnul(object, '&');
        deferred_ = *end != '\0';
        // The last character is dropped, also where the '&' is not the last one.
        const bool inside = deferred_ && end[1];
        const size_t length = static_cast<size_t>(end - object) + (inside ? strlen(end + 1) : 0);
        if (deferred_ || length >= kPathSize) {
            *static_cast<char *>(mempcpy(cut_, object, std::min(length, kPathSize - 1))) = '\0';
            text_ = cut_;
        }
    }
    Path(const Path &) = delete;
    Path &operator=(const Path &) = delete;

    [[nodiscard]] const char *text() const { return text_; }
    // Whether the object is added without sending the message yet.
    [[nodiscard]] bool deferred() const { return deferred_; }

  private:
    const char *text_;
    bool deferred_;
    char cut_[kPathSize]; // used only when the caller's text has to be shortened
};

bool isStoreOnly(const Request &request) {
    return isKeyword(request.mainOper, "set_only_db");
}

// The first letter spares a call for almost every object: without it, here and in faltocal_SendMultiObj(), the LAN page
// costs 2.59 times its floor, where its limit is 2.36.
bool isQuery(const char *object) {
    return (*object == 'q' || *object == 'Q') && strncasecmp(object, "query", kPathSize) == 0;
}

// Takes `count` parameters. A null node is passed on to the helper library.
void addParameters(ObjectNode *node, uint32_t mainOper, bool filter, uint32_t listFlags, int count,
                   Arguments &arguments) {
    if (mainOper == CALTOFAL_OPER_SET || filter) {
        for (; count > 0; --count) {
            const char *name = arguments.next();
            HELP_PARAM_SET(node, name, arguments.next());
        }
    } else if (mainOper == CALTOFAL_OPER_GET) {
        for (; count > 0; --count) {
            HELP_PARAM_GET(node, arguments.next(), listFlags);
        }
    }
}

int unknownWord(const TraceLines &lines, int line, const char *word, const char *object) {
    traceVola({Unit::FaltoCal, line, lines.function}, "Failure : Unknown args sMainOper = %s of %s \n", word, object);
    return -1;
}

int failedSend(const TraceLines &lines, const char *object) {
    traceVola({Unit::FaltoCal, lines.failedSend, lines.function}, "Failure : faltocal_sendQuery() of %s \n", object);
    return -1;
}

int send(const Request &request, bool storeOnly, const TraceLines &lines) {
    const int result = storeOnly ? faltocal_sendQuery_ToDb(request.message) : faltocal_sendQuery(request.message);
    return result == 0 ? 0 : failedSend(lines, request.object);
}

int addAndSend(const Request &request, Arguments arguments, const TraceLines &lines) {
    MsgHeader *message = request.message;
    const Path path(request.object);
    bool filter = false;
    bool storeOnly = false;
    if (message->objectList) {
        storeOnly = isStoreOnly(request);
    } else {
        // A message that "set_only_db" starts is applied all the same, unless a later call repeats the word.
        const ExtendedOperation &operation = extendedOperation(request.mainOper);
        if (operation.mainOper == 0) {
            return unknownWord(lines, lines.unknownMain, request.mainOper, request.object);
        }
        HELP_CREATE_OBJ(message, operation.mainOper, operation.listFlags, CALTOFAL_OWNER_HOST);
        filter = operation.filter;
    }
    const uint32_t sub = subOperation(request.subOper);
    if (sub == 0) {
        return unknownWord(lines, lines.unknownSub, request.subOper, request.object);
    }
    ObjectNode *node = nullptr;
    faltocal_FillObject(&node, message->objectList, path.text(), message->mainOper, sub, SOPT_OBJVALUE);
    const bool pairs = message->mainOper == CALTOFAL_OPER_SET || filter;
    if (node || pairs) {
        addParameters(node, message->mainOper, filter, SOPT_OBJVALUE, request.count, arguments);
    }
    return path.deferred() ? 0 : send(request, storeOnly, lines);
}

} // namespace

int faltocal_send_main_multi_obj(MsgHeader *message, const char *object, const char *mainOper, const char *subOper,
                                 int count, ...) {
    constexpr TraceLines kLines = {"faltocal_send_main_multi_obj", 744, 775, 830};
    const Request request = {message, object, mainOper, subOper, count};
    if (isQuery(object)) {
        if (!message->objectList) {
            traceVola({Unit::FaltoCal, 661}, "Failure : Received MsgHdr is NULL. can NOT do query.\n");
            return -1;
        }
        return send(request, isStoreOnly(request), kLines);
    }
    va_list list;
    va_start(list, count);
    const int result = addAndSend(request, Arguments(&list), kLines);
    va_end(list);
    return result;
}

int faltocal_send_main_multi_obj_No_variable(MsgHeader *message, char *object, const char *mainOper,
                                             const char *subOper, int count, const char **params) {
    constexpr TraceLines kLines = {"faltocal_send_main_multi_obj_No_variable", 950, 981, 1050};
    const Request request = {message, object, mainOper, subOper, count};
    if (isQuery(object)) {
        if (!message->objectList) {
            TraceLines lines = kLines;
            lines.failedSend = 1025;
            return failedSend(lines, object);
        }
        return send(request, isStoreOnly(request), kLines);
    }
    return addAndSend(request, Arguments(params), kLines);
}

int faltocal_SendMultiObj(uint8_t send, uint32_t listFlags, uint32_t owner, MsgHeader *message, const char *object,
                          const char *mainOper, const char *subOper, int count, ...) {
    if (*object == 'q' && strncmp(object, "query", kPathSize) == 0) {
        return send != 0 ? faltocal_sendQuery(message) : 0;
    }
    bool filter = false;
    if (!message->objectList) {
        filter = isKeyword(mainOper, "get_filter_by_param_value");
        const uint32_t main = filter ? uint32_t{CALTOFAL_OPER_GET} : mainOperation(mainOper);
        if (main == 0) {
            return -1;
        }
        HELP_CREATE_OBJ(message, main, listFlags, owner);
    }
    const uint32_t sub = subOperation(subOper);
    if (sub == 0) {
        return -1;
    }
    ObjectNode *node = nullptr;
    faltocal_FillObject(&node, message->objectList, object, message->mainOper, sub, listFlags);
    va_list list;
    va_start(list, count);
    Arguments arguments(&list);
    addParameters(node, message->mainOper, filter, listFlags, count, arguments);
    va_end(list);
    return send != 0 ? faltocal_sendQuery(message) : 0;
}
