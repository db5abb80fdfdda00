// SPDX-License-Identifier: MIT
/* A page: one record, one call. */
#include <caltofal.h>
#include <stdio.h>

/* A text that fills its field has no terminator: print it up to the field's width. */
#define FIELD(text) (int)sizeof(text), (text)

int main(void) {
    ZintuWanInfo wan = {0};
    int32_t code = ZintuGet_DefWanInfo(&wan);
    if (code == CALTOFAL_ABSENT_OBJECT || code == CALTOFAL_NO_MATCH) {
        puts("no default route"); /* all but the gateway is there */
    } else if (code != 0) {
        fprintf(stderr, "wan_page: code %d\n", (int)code);
        return 1;
    }
    printf("status   %.*s\n", FIELD(wan.sStatus));
    printf("type     %.*s\n", FIELD(wan.sWanIpType));
    printf("address  %.*s\n", FIELD(wan.sIPAddress));
    printf("gateway  %.*s\n", FIELD(wan.sGateway));
    printf("below    %.*s\n", FIELD(wan.sLowerLayers));
    return 0;
}
