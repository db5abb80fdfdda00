// SPDX-License-Identifier: MIT
// The path of an instance below Device.WiFi.
#pragma once

#include "frame/bounded_text.h"

#include <cstdint>

namespace wifi {

// The tables of Device.WiFi that are asked.
enum class Table : uint8_t { Radio, Ssid, AccessPoint, EndPoint };

// A table's instance and what follows its number: "&" to queue the object, or a sub-object.
class ObjectPath : public frame::BoundedText<128> {
  public:
    ObjectPath(Table table, int instance, const char *rest = "");
};

} // namespace wifi
