// SPDX-License-Identifier: MIT
/* Several objects in one message, built by hand. */
#include <caltofal.h>
#include <stdio.h>
#include <stdlib.h>

/* Adds an object and the names that are asked of it; without names the layer answers with all it has. */
static int ask(MsgHeader *message, const char *path, const char *const *names) {
    ObjectNode *object = NULL;
    int code =
        faltocal_FillObject(&object, message->objectList, path, CALTOFAL_OPER_GET, CALTOFAL_SUBOPER_GET, SOPT_OBJVALUE);
    for (; code == 0 && *names; ++names) {
        code = faltocal_FillParam(&object, CALTOFAL_OPER_GET, *names, 0, NULL);
    }
    return code;
}

static void print(const MsgHeader *answer) {
    for (ObjectNode *object = NULL; (object = caltofal_nextObject(answer, object));) {
        for (ParamNode *param = NULL; (param = caltofal_nextParam(object, param));) {
            printf("%s.%s = %s\n", object->name, param->name, param->value);
        }
    }
}

int main(void) {
    static const char *const kHosts[] = {"HostNumberOfEntries", NULL};
    static const char *const kRadio[] = {"Channel", "OperatingChannelBandwidth", NULL};
    MsgHeader *message = faltocal_createMessage(CALTOFAL_OPER_GET, SOPT_OBJVALUE);
    if (!message || !message->objectList) {
        free(message);
        return 1;
    }
    int code = -1;
    if (ask(message, "Device.Hosts.", kHosts) == 0 && ask(message, "Device.WiFi.Radio.", kRadio) == 0) {
        code = faltocal_sendQuery(message);
    }
    if (code == 0) {
        print(message);
    } else {
        fprintf(stderr, "several_objects: code %d\n", code);
    }
    faltocal_finalize(message); /* the lists, whatever the result */
    free(message);
    return code == 0 ? 0 : 1;
}
