// SPDX-License-Identifier: MIT
// Text of IP addresses: an IPv4 address as a number, and whether a text is an IPv6 address.
#include "caltofal.h"

#include <arpa/inet.h>

uint32_t IPConvertTouint(const char *text) {
    if (!text) {
        return 0;
    }
    in_addr address;
    return inet_aton(text, &address) != 0 ? address.s_addr : UINT32_MAX;
}

int32_t validationCheck_IPv6Addr(const char *text) {
    in6_addr address;
    return text && inet_pton(AF_INET6, text, &address) == 1 ? 0 : -1;
}
