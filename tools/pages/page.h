// SPDX-License-Identifier: MIT
// A page of settings: labelled values in sections, as the library's records hold them.
#pragma once

#include "pages/report.h"

#include <cstdint>
#include <string>
#include <vector>

namespace cli {

struct Field {
    std::string key; // in JSON, with the unit where there is one
    std::string label;
    Json value; // null: the gateway does not say
    std::string unit;
};

struct Section {
    std::string key; // "": the page's own fields
    std::string title;
    std::vector<Field> fields;
};

struct Page {
    std::vector<Section> sections;
    std::vector<std::string> notes;

    // A field's value by "key" or "section.key"; null when there is none.
    [[nodiscard]] Json value(std::string_view path) const;
};

// A section with nothing known in it is left out for people and null in JSON.
Report report(const Page &page);

// The value as people read it: "-" for nothing, "yes" and "no" for flags.
std::string readable(const Json &value, const std::string &unit = {});

// What a number or a flag holds before the library is called: it stays where the gateway does not say.
constexpr int32_t kUntouched = INT32_MIN;
constexpr uint8_t kUntouchedFlag = 0xff;

template <typename... Number>
void untouch(Number &...numbers) {
    ((numbers = kUntouched), ...);
}

inline Json number(int32_t value) {
    return value == kUntouched ? Json() : Json(value);
}
inline Json flag(int32_t value) {
    return value == kUntouched ? Json() : Json(value != 0);
}
inline Json flag(uint8_t value) {
    return value == kUntouchedFlag ? Json() : Json(value != 0);
}
// Units of 0.1.
inline Json tenths(int32_t value) {
    return value == kUntouched ? Json() : Json(value / 10.0);
}
// A comma-separated list of attenuations, in dB: whole numbers count 0.1 dB, those with a decimal point are in dB
// already. As text where one of them is no number.
Json decibels(const std::string &list);

} // namespace cli
