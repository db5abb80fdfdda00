// SPDX-License-Identifier: MIT
#include "pages/page.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace cli {
namespace {

std::string readableNumber(const Json &value) {
    if (!value.is_number_float()) {
        return value.dump();
    }
    char text[32];
    snprintf(text, sizeof text, "%.1f", value.get<double>());
    return text;
}

std::string plain(const Json &value) {
    if (value.is_boolean()) {
        return value.get<bool>() ? "yes" : "no";
    }
    if (value.is_number()) {
        return readableNumber(value);
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    std::string list;
    for (const Json &item : value) {
        list += (list.empty() ? "" : ", ") + plain(item);
    }
    return list;
}

// The unspecified address is what a gateway holds where nothing was configured.
bool isKnown(const Field &field) {
    const std::string text = plain(field.value);
    return !text.empty() && text != "0.0.0.0";
}

bool isKnown(const Section &section) {
    return section.key.empty() ||
           std::any_of(section.fields.begin(), section.fields.end(), [](const Field &field) { return isKnown(field); });
}

Json jsonOf(const Section &section) {
    Json object = Json::object();
    for (const Field &field : section.fields) {
        put(object, field.key, field.value);
    }
    return object;
}

Style styleOf(const Json &value) {
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
        table.rows.push_back({{field.label}, {readable(field.value, field.unit), styleOf(field.value)}});
    }
}

} // namespace

std::string readable(const Json &value, const std::string &unit) {
    const std::string text = plain(value);
    if (text.empty()) {
        return "-";
    }
    return unit.empty() ? text : text + " " + unit;
}

Json decibels(const std::string &list) {
    Json numbers = Json::array();
    const char *end = list.data() + list.size();
    for (const char *at = list.data(); at < end;) {
        double number = 0;
        const auto [behind, error] = std::from_chars(at, end, number, std::chars_format::fixed);
        if (error != std::errc() || (behind != end && *behind != ',')) {
            return list;
        }
        const bool whole = std::find(at, behind, '.') == behind;
        numbers.push_back(whole ? number / 10 : number);
        at = behind + 1;
    }
    return numbers;
}

Json Page::value(std::string_view path) const {
    const size_t dot = path.find('.');
    const std::string_view sectionKey = dot == std::string_view::npos ? "" : path.substr(0, dot);
    const std::string_view fieldKey = dot == std::string_view::npos ? path : path.substr(dot + 1);
    for (const Section &section : sections) {
        for (const Field &field : section.fields) {
            if (section.key == sectionKey && field.key == fieldKey) {
                return field.value;
            }
        }
    }
    return {};
}

Report report(const Page &page) {
    Report result{Json::object(), {}, {}, page.notes};
    for (const Section &section : page.sections) {
        const bool known = isKnown(section);
        if (section.key.empty()) {
            result.json.update(jsonOf(section));
        } else {
            result.json[section.key] = known ? jsonOf(section) : Json();
        }
        if (known) {
            addRows(result.table, section);
        }
    }
    return result;
}

} // namespace cli
