/* SPDX-License-Identifier: MIT
 * A host on musl with a platform of its own: the smallest configuration layer that answers one object. */
#include <caltofal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void append(ListLink *head, ListLink *node) {
    node->next = head;
    node->prev = head->prev;
    head->prev->next = node;
    head->prev = node;
}

void *help_calloc(size_t count, size_t size, const char *unit, int line) {
    (void)unit;
    (void)line;
    return calloc(count, size);
}

ObjectNode *help_addObjList(ObjectNode *list, const char *name, uint32_t id, uint32_t instance, uint32_t sub,
                            uint32_t flags) {
    ObjectNode *node = calloc(1, sizeof(*node));
    (void)id, (void)instance, (void)sub, (void)flags;
    snprintf(node->name, sizeof(node->name), "%s", name);
    node->params.next = node->params.prev = &node->params;
    append(&list->link, &node->link);
    return node;
}

ParamNode *help_addParamList(ObjectNode *object, const char *name, uint32_t id, const char *value, uint32_t flags) {
    ParamNode *node = calloc(1, sizeof(*node));
    (void)id, (void)flags;
    snprintf(node->name, sizeof(node->name), "%s", name);
    snprintf(node->value, sizeof(node->value), "%s", value ? value : "");
    append(&object->params, &node->link);
    return node;
}

void *help_addObjAttrList(void) {
    return NULL;
}
void *help_addParamAttrList(void) {
    return NULL;
}
int help_delMsg(MsgHeader *message, int what) {
    (void)what;
    message->objectList = NULL; /* this host lives shortly */
    return 0;
}

int cal_setValue(MsgHeader *message) {
    return message ? 0 : -1;
}
int cal_setValueToDb(MsgHeader *message) {
    return message ? 0 : -1;
}
int cal_getValue(MsgHeader *message) {
    ObjectNode *object = NULL;
    while ((object = caltofal_nextObject(message, object)) != NULL) {
        help_addParamList(object, "OperationMode", 0, "4", 0);
        help_addParamList(object, "ProductClass", 0, "musl", 0);
    }
    return 0;
}

int main(void) {
    char hex[9], upper[] = "musl";
    ConvCharStrToHexDec("musl", 4, hex);
    printf("%d %s %s %d %08x\n", ZintuGet_OperMode(), hex, strupr(upper), zintu_isValidMacAddress("02:00:5E:10:00:01"),
           (unsigned)IPConvertTouint("0.0.0.0"));
    return 0;
}
