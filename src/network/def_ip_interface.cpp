// SPDX-License-Identifier: MIT
// The published list of IP interfaces.
#include "caltofal.h"

const char *const ZINTU_DEF_IP_INTERFACE[19] = {
    "Device.IP.Interface.3.",  "Device.IP.Interface.4.",  "Device.IP.Interface.5.",  "Device.IP.Interface.6.",
    "Device.IP.Interface.7.",  "Device.IP.Interface.8.",  "Device.IP.Interface.9.",  "Device.IP.Interface.10.",
    "Device.IP.Interface.11.", "Device.IP.Interface.12.", "Device.IP.Interface.13.", "Device.IP.Interface.14.",
    "Device.IP.Interface.15.", "Device.IP.Interface.16.", "Device.IP.Interface.17.", "Device.IP.Interface.18.",
    "Device.IP.Interface.19.", "Device.IP.Interface.20.", "Device.IP.Interface.21.",
};
