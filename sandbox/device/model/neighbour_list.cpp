// SPDX-License-Identifier: MIT
#include "device/model/neighbour_list.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>
#include <stdexcept>

namespace device {
namespace {

bool isAnything(const std::string & /*text*/) {
    return true;
}

bool isBand(const std::string &text) {
    return text == "2.4GHz" || text == "5GHz" || text == "6GHz";
}

bool isNumber(const std::string &text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool isMac(const std::string &text) {
    constexpr size_t kLength = 17;
    bool valid = text.size() == kLength;
    for (size_t i = 0; valid && i < kLength; ++i) {
        valid = i % 3 == 2 ? text[i] == ':' : isxdigit(static_cast<unsigned char>(text[i])) != 0;
    }
    return valid;
}

bool isFlag(const std::string &text) {
    return text == "0" || text == "1";
}

struct Column {
    const char *name;
    bool (*isValid)(const std::string &) = isAnything;
    const char *wanted = "";
};

constexpr Column kColumns[] = {
    {"band", isBand, "2.4GHz, 5GHz or 6GHz"},
    {"SSID"},
    {"channel", isNumber, "a whole number"},
    {"signal", isNumber, "a whole number of dBm"},
    {"security"},
    {"encryption"},
    {"BSSID", isMac, "six pairs of hexadecimal digits with colons"},
    {"width", isNumber, "a whole number of MHz"},
    {"standards"},
    {"secondary channel"},
    {"product", isFlag, "0 or 1"},
};
constexpr size_t kBand = 0;
constexpr size_t kSsid = 1;
constexpr size_t kSignal = 3;
constexpr size_t kBssid = 6;

std::vector<std::string> tabSeparated(const std::string &line) {
    std::vector<std::string> columns{""};
    for (const char c : line) {
        if (c == '\t') {
            columns.emplace_back();
        } else {
            columns.back() += c;
        }
    }
    return columns;
}

[[noreturn]] void refuse(const std::string &name, size_t line, const std::string &why) {
    throw std::runtime_error(name + ":" + std::to_string(line) + ": " + why);
}

// What is wrong with a line; "" for nothing.
std::string mistake(const std::vector<std::string> &columns) {
    if (columns.size() != std::size(kColumns)) {
        return "a network has " + std::to_string(std::size(kColumns)) + " columns with tabs between them, this line " +
               std::to_string(columns.size());
    }
    for (size_t i = 0; i < columns.size(); ++i) {
        if (!kColumns[i].isValid(columns[i])) {
            return "column " + std::to_string(i + 1) + ", the " + kColumns[i].name + ", is not " + kColumns[i].wanted;
        }
    }
    return "";
}

} // namespace

std::vector<Neighbour> parseNeighbours(std::istream &list, const std::string &name) {
    std::vector<Neighbour> neighbours;
    size_t number = 1;
    for (std::string line; std::getline(list, line); ++number) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::vector<std::string> columns = tabSeparated(line);
        if (const std::string wrong = mistake(columns); !wrong.empty()) {
            refuse(name, number, wrong);
        }
        neighbours.push_back({columns[kBand], columns[kSsid], columns[kBssid], std::stoi(columns[kSignal]),
                              line.substr(columns[kBand].size() + 1)});
    }
    return neighbours;
}

} // namespace device
