/* SPDX-License-Identifier: MIT
 * A host program in C. */
#include <caltofal.h>
#include <stdio.h>

int main(void) {
    ZintuWanInfo wan = {0};
    LANv4Info lan = {0};
    if (ZintuGet_DefWanInfo(&wan) != 0 || ZintuGet_LANv4Info(&lan) != 0) {
        return 1;
    }
    printf("mode %d\n", (int)ZintuGet_OperMode());
    printf("wan %s %s %s\n", wan.sStatus, wan.sWanIpType, wan.sIPAddress);
    printf("lan %s %s\n", lan.sIPv4Address, lan.sIPv4Subnet);
    printf("20 MHz is %s\n", BandWidth_FapiToUi_Table[0].sSecond);
    return 0;
}
