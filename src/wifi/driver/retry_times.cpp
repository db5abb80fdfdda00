// SPDX-License-Identifier: MIT
// How long a host waits before it asks again: a longer first interval, then equal ones.
#include "caltofal.h"

#define THIRTEEN_THREES 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3
#define FIRST_THEN_THREES(first)                                                                                       \
    { first, THIRTEEN_THREES, THIRTEEN_THREES, THIRTEEN_THREES }

const uint8_t SCAN_5G_RetryTime[40] = FIRST_THEN_THREES(25);
const uint8_t SCAN_24G_RetryTime[40] = FIRST_THEN_THREES(15);
const uint8_t WPS_RetryTime[40] = FIRST_THEN_THREES(5);
