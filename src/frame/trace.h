// SPDX-License-Identifier: MIT
// The console trace: a location tag, then the message, each a line of its own on the console.
#pragma once

#include "caltofal.h"

#include <string_view>
#include <type_traits>

namespace frame {

// The source units that a tag names.
enum class Unit : int { FaltoCal, NetworkGet, MeshGrove, WifiUtil };

inline constexpr char kUnitNames[][16] = {"FaltoCal", "ZintuNetworkGet", "ZintuMeshGrove", "ZintuWifiUtil"};

// The line and the function that a tag names: the caller's, but where they are fixed.
struct Spot {
    // NOLINTNEXTLINE(google-explicit-constructor): a line alone is a spot of the caller's
    Spot(int fixedLine = __builtin_LINE(), const char *caller = __builtin_FUNCTION())
        : line(fixedLine), function(caller) {}

    int line;
    const char *function;
};

// A spot of a unit.
struct Place {
    // NOLINTNEXTLINE(google-explicit-constructor): a unit alone is the caller's place in it
    Place(Unit source, int fixedLine = __builtin_LINE(), const char *caller = __builtin_FUNCTION())
        : unit(source), spot(fixedLine, caller) {}

    Unit unit;
    Spot spot;
};

// A message of "%s" for texts and "%d" for numbers. One that does not fit the values behind it does not compile.
template <class... Values>
class Format {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): stands for its text
    consteval Format(const char *text) : text_(text) {
        const char *at = text;
        if (!(takes<Values>(at) && ...) || std::string_view(at).find('%') != std::string_view::npos) {
            theMessageDoesNotFitItsValues();
        }
    }

    [[nodiscard]] const char *text() const { return text_; }

  private:
    // Never defined and no constant expression: its name is what the compiler says.
    static void theMessageDoesNotFitItsValues();

    template <class Value>
    static constexpr bool kIsText = std::is_same_v<Value, const char *> || std::is_same_v<Value, char *>;
    template <class Value>
    static constexpr bool kIsNumber = std::is_integral_v<Value> && sizeof(Value) <= sizeof(int);

    // Whether the next sign is a value's; leaves `at` behind it.
    template <class Value>
    static consteval bool takes(const char *&at) {
        while (*at && *at != '%') {
            ++at;
        }
        if (!*at || !(*++at == 's' ? kIsText<Value> : *at == 'd' && kIsNumber<Value>)) {
            return false;
        }
        ++at;
        return true;
    }

    const char *text_;
};

// As the compiler finds it: the values decide, not the message.
template <class... Values>
using FormatOf = Format<std::type_identity_t<Values>...>;

namespace detail {

void vola(Unit unit, int line, const char *function, const char *format, ...);
void error(int line, const char *function, const char *format, ...);

} // namespace detail

// "[ZINTU VOLA FAL] (unit:line, function) ", then the message.
template <class... Values>
void traceVola(Place place, FormatOf<Values...> message, Values... values) {
    detail::vola(place.unit, place.spot.line, place.spot.function, message.text(), values...);
}

// "\n\n\t[function : line] ", then the message.
template <class... Values>
void traceError(Spot spot, FormatOf<Values...> message, Values... values) {
    detail::error(spot.line, spot.function, message.text(), values...);
}

// "\n\n\t[function : line] (code)", then the message as it stands.
void traceCode(int code, const char *message, Spot spot);

// A request through faltocal_send_main_multi_obj() that failed.
void traceFailedRequest(Spot spot = {});

// The tag of traceVola() alone, put together by the compiler: for what is traced when all goes well. It stands in a
// `static constexpr` of the function that traces.
class VolaTag {
  public:
    consteval explicit VolaTag(Unit unit, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
        append("[ZINTU VOLA FAL] (");
        append(kUnitNames[static_cast<int>(unit)]);
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

} // namespace frame
