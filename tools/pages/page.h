// SPDX-License-Identifier: MIT
// A page of settings: labelled values in sections, as the library's records hold them.
#pragma once

#include "pages/report.h"
#include "pages/text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pages {

struct Field {
    std::string key; // in JSON, with the unit where there is one
    std::string label;
    Value value; // null: the gateway does not say
    std::string unit = {};
    std::string words = {}; // what people read in place of the value and its unit; "": these
};

struct Section {
    std::string key; // "": the page's own fields
    std::string title;
    std::vector<Field> fields;
};

struct Page {
    std::vector<Section> sections;
    std::vector<std::string> notes = {};

    // A field's value by "key" or "section.key"; null when there is none.
    [[nodiscard]] Value value(std::string_view path) const;

    // A section with nothing known in it is left out for people and null in JSON.
    operator Report() const; // NOLINT(google-explicit-constructor): a page is what a report is made of
};

// A page without sections.
inline Page pageOf(std::vector<Field> fields) {
    return {{{"", "", std::move(fields)}}};
}

// The value as people read it: "-" for nothing, "yes" and "no" for flags.
std::string readable(const Value &value, const std::string &unit = {});

// A cell with a value as people read it.
Cell cellOf(const Value &value, const std::string &unit = {});

// A table's row from members of an object.
Row rowOf(const Value &object, std::initializer_list<const char *> keys);

// For scripts: the members of one object of a list, "NAME.member" each.
void addFacts(Table &table, const std::string &name, const Value &object);

// What a number or a flag holds before the library is called: it stays where the gateway does not say.
constexpr int32_t kUntouched = INT32_MIN;
constexpr uint8_t kUntouchedFlag = 0xff;

template <class... Number>
void untouch(Number &...numbers) {
    ((numbers = kUntouched), ...);
}

inline Value number(int32_t value) {
    return value == kUntouched ? Value() : Value(value);
}
inline Value flag(int32_t value) {
    return value == kUntouched ? Value() : Value(value != 0);
}
inline Value flag(uint8_t value) {
    return value == kUntouchedFlag ? Value() : Value(value != 0);
}
// An answer's text as a number; null where it has none.
Value numberOf(const std::string &text);

// Units of 0.1.
inline Value tenths(int32_t value) {
    return value == kUntouched ? Value() : Value(value / 10.0);
}
// A comma-separated list of attenuations, in dB: whole numbers count 0.1 dB, those with a decimal point are in dB
// already. As text where one of them is no number.
Value decibels(const std::string &list);

} // namespace pages
