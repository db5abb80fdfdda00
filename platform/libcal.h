/* SPDX-License-Identifier: MIT
 *
 * libcal.h - the configuration abstraction layer, as the library calls it.
 *
 * Each function takes one message (caltofal.h) and answers 0 or a negative code. A get writes its answer into the
 * message's own lists. The layer takes one message at a time from a process: callers hold capi_mutex.
 */
#ifndef CALTOFAL_PLATFORM_LIBCAL_H
#define CALTOFAL_PLATFORM_LIBCAL_H

#include "caltofal.h"

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/* Reads what the message names. */
int cal_getValue(MsgHeader *message);

/* Stores and applies what the message sets, all or nothing. */
int cal_setValue(MsgHeader *message);

/* Stores what the message sets without applying it, all or nothing. */
int cal_setValueToDb(MsgHeader *message);

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
