// SPDX-License-Identifier: MIT
// The path of an object instance.
#pragma once

#include "bounded_text.h"

namespace wifi {

// A prefix, an instance number and what follows it: "&" to queue the object, or a sub-object.
class ObjectPath : public frame::BoundedText<128> {
  public:
    ObjectPath(const char *prefix, int instance, const char *rest = "") {
        append(prefix);
        append(instance);
        append(rest);
    }
};

inline constexpr char kRadio[] = "Device.WiFi.Radio.";
inline constexpr char kSsid[] = "Device.WiFi.SSID.";
inline constexpr char kAccessPoint[] = "Device.WiFi.AccessPoint.";
inline constexpr char kEndPoint[] = "Device.WiFi.EndPoint.";

} // namespace wifi
