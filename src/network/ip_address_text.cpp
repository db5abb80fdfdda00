// SPDX-License-Identifier: MIT
// Address checks of the network pages, and the published list of WAN interfaces.
#include "caltofal.h"

#include <arpa/inet.h>

const char *const ZINTU_DEF_IP_INTERFACE[19] = {
    "Device.IP.Interface.3.",  "Device.IP.Interface.4.",  "Device.IP.Interface.5.",  "Device.IP.Interface.6.",
    "Device.IP.Interface.7.",  "Device.IP.Interface.8.",  "Device.IP.Interface.9.",  "Device.IP.Interface.10.",
    "Device.IP.Interface.11.", "Device.IP.Interface.12.", "Device.IP.Interface.13.", "Device.IP.Interface.14.",
    "Device.IP.Interface.15.", "Device.IP.Interface.16.", "Device.IP.Interface.17.", "Device.IP.Interface.18.",
    "Device.IP.Interface.19.", "Device.IP.Interface.20.", "Device.IP.Interface.21.",
};

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
