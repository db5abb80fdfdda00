// SPDX-License-Identifier: MIT
// The two senders: the only calls into the configuration layer, each under the process-wide lock.
#include "frame/help_objlist.h"
#include "libcal.h"

#include <cstdio>

using namespace frame;

pthread_mutex_t capi_mutex = PTHREAD_MUTEX_INITIALIZER;

namespace {

using LayerCall = int (*)(MsgHeader *);

int callLocked(LayerCall call, MsgHeader *message, const char *failure) {
    pthread_mutex_lock(&capi_mutex);
    const int result = call(message);
    pthread_mutex_unlock(&capi_mutex);
    if (result != 0) {
        fputs(failure, stderr);
    }
    return result;
}

// Only gets and sets are ever delivered.
int deliver(MsgHeader *message, LayerCall set) {
    switch (message->mainOper) {
    case CALTOFAL_OPER_GET:
        return callLocked(cal_getValue, message, "\n Get test failure\n");
    case CALTOFAL_OPER_SET:
        return callLocked(set, message, "\n Set test failure\n");
    default:
        return -1;
    }
}

} // namespace

int faltocal_sendQuery(MsgHeader *message) {
    return deliver(message, cal_setValue);
}

int faltocal_sendQuery_ToDb(MsgHeader *message) {
    return deliver(message, cal_setValueToDb);
}
