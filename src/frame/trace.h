// SPDX-License-Identifier: MIT
// The console trace: a location tag, then the message, each with a PRINT_TO_CONSOLE() of its own. A caller prints the
// tag with one of these and the message right after it.
#pragma once

#include "caltofal.h"

namespace frame {

// Source units as they appear in a tag.
inline constexpr char kFaltoCal[] = "FaltoCal";
inline constexpr char kNetworkGet[] = "ZintuNetworkGet";
inline constexpr char kMeshGrove[] = "ZintuMeshGrove";
inline constexpr char kWifiUtil[] = "ZintuWifiUtil";

// "[ZINTU VOLA FAL] (unit:line, function) ". Pass the line where it is fixed.
void traceVola(const char *unit, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

// The tag of traceVola(), put together by the compiler: for what is traced when all goes well. It stands in a
// `static constexpr` of the function that traces.
class VolaTag {
  public:
    consteval explicit VolaTag(const char *unit, int line = __builtin_LINE(),
                               const char *function = __builtin_FUNCTION()) {
        append("[ZINTU VOLA FAL] (");
        append(unit);
        append(":");
        append(line);
        append(", ");
        append(function);
        append(") ");
    }

    [[nodiscard]] const char *text() const { return text_; }
    [[nodiscard]] size_t length() const { return length_; }

  private:
    consteval void append(const char *text) {
        while (*text) {
            text_[length_++] = *text++;
        }
    }
    consteval void append(int number) {
        if (number >= 10) {
            append(number / 10);
        }
        text_[length_++] = static_cast<char>('0' + number % 10);
    }

    char text_[95] = {};
    uint8_t length_ = 0;
};
void traceVola(const VolaTag &tag);

// "\n\n\t[function : line] ".
void traceError(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

// "\n\n\t[function : line] (code)".
void traceCode(int code, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

} // namespace frame
