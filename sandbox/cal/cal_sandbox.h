/* SPDX-License-Identifier: MIT
 *
 * cal_sandbox.h - what the sandbox's libcal offers beyond libcal.h. Look it up with dlsym(): a device's libcal
 * has none of it.
 */
#ifndef CALTOFAL_CAL_SANDBOX_H
#define CALTOFAL_CAL_SANDBOX_H

#ifdef __cplusplus
extern "C" {
#endif

/* Why the calling thread's last message was refused, in one line such as
 * `Device.WiFi.Radio.1.Channel: "abc" is not of type unsignedInt`; "" after a success. Valid until the thread's
 * next message. */
const char *cal_sandboxReason(void);

/* Type, access and default of a parameter, "OBJECT.NAME", as a gateway file has them in square brackets:
 * `unsignedInt(1:255) rw default="1"`; "" when there is no such parameter. Valid until the thread's next call. */
const char *cal_sandboxDefinition(const char *parameter);

#ifdef __cplusplus
}
#endif

#endif
