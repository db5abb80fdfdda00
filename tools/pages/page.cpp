// SPDX-License-Identifier: MIT
#include "pages/page.h"

#include "caltofal.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace pages {
namespace {

std::string readableNumber(const Value &value) {
    if (!value.isFraction()) {
        return std::to_string(value.whole());
    }
    char text[32];
    snprintf(text, sizeof(text), "%.1f", value.number());
    return text;
}

std::string plain(const Value &value, const char *comma = ", ") {
    if (value.isFlag()) {
        return value.flag() ? "yes" : "no";
    }
    if (value.isNumber()) {
        return readableNumber(value);
    }
    if (value.isText()) {
        return value.text();
    }
    std::string list;
    for (const Value &item : value.items()) {
        list += (list.empty() ? "" : comma) + plain(item);
    }
    return list;
}

// The unspecified address is what a gateway holds where nothing was configured; references may
// end in a dot.
Value shown(const Field &field) {
    if (field.value == "0.0.0.0") {
        return {};
    }
    return field.value.text().starts_with("Device.") ? Value(plainPaths(field.value.text())) : field.value;
}

bool isKnown(const Field &field) {
    return !plain(shown(field)).empty();
}

bool isKnown(const Section &section) {
    return section.key.empty() ||
           std::any_of(section.fields.begin(), section.fields.end(), [](const Field &field) { return isKnown(field); });
}

Value valueOf(const Section &section) {
    Value object = Value::object();
    for (const Field &field : section.fields) {
        object[field.key] = shown(field);
    }
    return object;
}

Style styleOf(const Value &value) {
    if (value == "Up" || value == "connected") {
        return Style::Good;
    }
    return value == "Down" || value == "disconnected" ? Style::Bad : Style::Plain;
}

void addRows(Table &table, const Section &section) {
    if (!section.title.empty()) {
        if (!table.rows.empty()) {
            table.rows.push_back({{}, {}});
        }
        table.rows.push_back({{section.title, Style::Heading}, {}});
    }
    for (const Field &field : section.fields) {
        table.rows.push_back(
            {{field.label}, field.words.empty() ? cellOf(shown(field), field.unit) : Cell{field.words}});
    }
}

// For scripts: the members of the JSON, one a line.
void addFacts(Table &table, const Section &section) {
    for (const Field &field : section.fields) {
        const std::string key = section.key.empty() ? field.key : section.key + "." + field.key;
        table.forScripts.push_back({{key}, cellOf(shown(field))});
    }
}

} // namespace

std::string readable(const Value &value, const std::string &unit) {
    const std::string text = plain(value);
    if (text.empty()) {
        return "-";
    }
    return unit.empty() ? text : text + " " + unit;
}

Cell cellOf(const Value &value, const std::string &unit) {
    return {
        .text = readable(value, unit), .style = styleOf(value), .forScripts = value.isList() ? plain(value, ",") : ""};
}

Row rowOf(const Value &object, std::initializer_list<const char *> keys) {
    Row row;
    for (const char *key : keys) {
        row.push_back(cellOf(object[key]));
    }
    return row;
}

Value numberOf(const std::string &text) {
    const bool hasDigits = text.find_first_of("0123456789") != std::string::npos;
    return hasDigits ? Value(ConvInt(text.c_str())) : Value();
}

Value decibels(const std::string &list) {
    Value numbers = Value::list();
    const char *end = list.data() + list.size();
    for (const char *at = list.data(); at < end;) {
        double number = 0;
        const auto [behind, error] = std::from_chars(at, end, number, std::chars_format::fixed);
        if (error != std::errc() || (behind != end && *behind != ',')) {
            return list;
        }
        const bool whole = std::find(at, behind, '.') == behind;
        numbers.push(whole ? number / 10 : number);
        at = behind + 1;
    }
    return numbers;
}

void addFacts(Table &table, const std::string &name, const Value &object) {
    for (const Member &fact : object.members()) {
        table.forScripts.push_back({{name + "." + fact.key}, cellOf(fact.value)});
    }
}

Value Page::value(std::string_view path) const {
    const size_t dot = path.find('.');
    const std::string_view sectionKey = dot == std::string_view::npos ? "" : path.substr(0, dot);
    const std::string_view fieldKey = dot == std::string_view::npos ? path : path.substr(dot + 1);
    for (const Section &section : sections) {
        for (const Field &field : section.fields) {
            if (section.key == sectionKey && field.key == fieldKey) {
                return shown(field);
            }
        }
    }
    return {};
}

Page::operator Report() const {
    Report result{.json = Value::object(), .notes = notes};
    for (const Section &section : sections) {
        const bool known = isKnown(section);
        if (!section.key.empty()) {
            result.json[section.key] = known ? valueOf(section) : Value();
        } else {
            for (const Field &field : section.fields) {
                result.json[field.key] = shown(field);
            }
        }
        if (known) {
            addRows(result.table, section);
        }
        addFacts(result.table, section);
    }
    return result;
}

} // namespace pages
