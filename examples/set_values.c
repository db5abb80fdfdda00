// SPDX-License-Identifier: MIT
/* Setting values of two objects in one message: set_values CHANNEL [stored] */
#include <caltofal.h>
#include <stdio.h>
#include <string.h>

static const char *reason(int code) {
    switch (code) {
    case CALTOFAL_ABSENT_OBJECT:
        return "there is no such radio";
    case CALTOFAL_WRONG_TYPE:
        return "a channel is a number";
    case CALTOFAL_OUT_OF_RANGE:
        return "no radio has that channel";
    default:
        return "the configuration layer refused";
    }
}

int main(int argc, char **argv) {
    if (argc < 2) {
        return 2;
    }
    const int stored = argc > 2 && strcmp(argv[2], "stored") == 0;
    MsgHeader message = {0};
    /* The first argument, 0, collects; the third is who asks. The layer's own code is told by these senders alone. */
    int code = faltocal_SendMultiObj(0, SOPT_OBJVALUE, CALTOFAL_OWNER_HOST, &message, "Device.WiFi.Radio.1.", "set",
                                     "set", 2, "AutoChannelEnable", "false", "Channel", argv[1]);
    if (code == 0) {
        code = faltocal_SendMultiObj(0, SOPT_OBJVALUE, CALTOFAL_OWNER_HOST, &message, "Device.WiFi.Radio.2.", "set",
                                     "set", 1, "AutoChannelEnable", "true");
    }
    if (code == 0) {
        code = stored ? faltocal_sendQuery_ToDb(&message) : faltocal_sendQuery(&message);
    }
    faltocal_finalize(&message);
    if (code != 0) {
        fprintf(stderr, "set_values: %s (%d)\n", reason(code), code);
        return 1;
    }
    return 0;
}
