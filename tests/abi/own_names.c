/* SPDX-License-Identifier: MIT
 * A host with functions of its own under names that the library publishes too: they are never called in place of the
 * library's. */
#include <caltofal.h>
#include <stdio.h>
#include <string.h>

static int called = 0;

int atob(const char *text) {
    (void)text;
    ++called;
    return 1;
}

void reverse_string(char *text) {
    (void)text;
    ++called;
}

char *trim_start_space(char *text) {
    ++called;
    return text;
}

int zintu_isValidIPv4Address(const char *address) {
    (void)address;
    ++called;
    return -1;
}

int main(void) {
    char element[] = "  <b>payload</b>";
    ZintuWanInfo wan;
    memset(&wan, 0, sizeof(wan));
    remove_rss_tag(element, "<b>");
    ZintuGet_DefWanInfo(&wan);
    ZINTU_meshgrove_check_is_enabled();
    if (called != 0 || strcmp(element, "payload") != 0) {
        fprintf(stderr, "the host's functions were called %d times, the element became \"%s\"\n", called, element);
        return 1;
    }
    return 0;
}
