/* SPDX-License-Identifier: MIT
 * A host program in C, against the demo gateway: what a newcomer would write first. */
#include <caltofal.h>
#include <stdio.h>
#include <string.h>

#if CALTOFAL_VERSION_MAJOR != PROJECT_MAJOR || CALTOFAL_VERSION_MINOR != PROJECT_MINOR ||                              \
    CALTOFAL_VERSION_PATCH != PROJECT_PATCH
#error "include/caltofal.h and CMakeLists.txt give different versions"
#endif

static int failures = 0;

static void check(int condition, const char *what) {
    if (!condition) {
        fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}

static void read_pages(void) {
    ZintuWanInfo wan;
    memset(&wan, 0, sizeof(wan));
    check(ZintuGet_OperMode() > 0, "the operation mode is known");
    check(ZintuGet_DefGw(&wan) == 0, "the default gateway is known");
    check(strncmp(wan.sWanIpInterface, "Device.IP.Interface.", 20) == 0, "it is an IP interface");
}

static void walk_a_message(void) {
    MsgHeader message = {0, 0, 0, 0, 0, NULL};
    const ObjectNode *object = NULL;
    int hosts = 0;
    check(faltocal_send_main_multi_obj(&message, "Device.Hosts.Host.", "get", "get", 1, "PhysAddress") == 0, "get");
    while ((object = caltofal_nextObject(&message, object)) != NULL) {
        const ParamNode *param = caltofal_nextParam(object, NULL);
        check(param && strcmp(param->name, "PhysAddress") == 0, "the parameter asked for");
        check(caltofal_nextParam(object, param) == NULL, "and no other");
        ++hosts;
    }
    check(hosts > 1, "several hosts");
    check(faltocal_finalize(&message) == 0, "finalize");
}

static void change_and_read_back(void) {
    char value[128] = "";
    char *out = value;
    MsgHeader message = {0, 0, 0, 0, 0, NULL};
    check(faltocal_send_main(&message, "Device.WiFi.Radio.1.", "set", "set", 1, "Channel", "11") == 0, "set");
    faltocal_finalize(&message);
    check(faltocal_send_main(&message, "Device.WiFi.Radio.1.", "get", "get", 1, "Channel") == 0, "get");
    check(caltofal_paramValue_get(message.objectList, "Radio.1", "Channel", &out) == 0, "found");
    check(strcmp(value, "11") == 0, "the value set");
    faltocal_finalize(&message);
}

int main(void) {
    read_pages();
    walk_a_message();
    change_and_read_back();
    return failures != 0;
}
