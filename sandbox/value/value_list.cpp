// SPDX-License-Identifier: MIT
#include "value/value_list.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace sandbox {
namespace {

constexpr int kHighest24GHz = 14;
constexpr int kHighestChannel = 233;
constexpr int kStep = 4; // between channels beyond 2.4 GHz

std::optional<int> numberOf(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

struct Range {
    int least, most;
};

std::optional<Range> rangeOf(std::string_view item) {
    const size_t dash = item.find('-', 1);
    if (dash == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<int> least = numberOf(item.substr(0, dash));
    const std::optional<int> most = numberOf(item.substr(dash + 1));
    return least && most ? std::optional(Range{*least, *most}) : std::nullopt;
}

bool includes(std::string_view item, std::string_view value) {
    const std::optional<int> number = numberOf(value);
    const std::optional<Range> range = rangeOf(item);
    return item == value || (range && number && *number >= range->least && *number <= range->most);
}

} // namespace

std::vector<std::string_view> listItems(std::string_view list) {
    std::vector<std::string_view> result;
    while (!list.empty()) {
        const size_t end = std::min(list.find(','), list.size());
        std::string_view item = list.substr(0, end);
        list.remove_prefix(std::min(end + 1, list.size()));
        item.remove_prefix(std::min(item.find_first_not_of(' '), item.size()));
        item = item.substr(0, item.find_last_not_of(' ') + 1);
        if (!item.empty()) {
            result.push_back(item);
        }
    }
    return result;
}

bool listAllows(std::string_view list, std::string_view value) {
    const std::vector<std::string_view> possible = listItems(list);
    return std::any_of(possible.begin(), possible.end(), [value](auto item) { return includes(item, value); });
}

std::vector<int> channelsOf(std::string_view list) {
    std::vector<int> channels;
    for (const std::string_view item : listItems(list)) {
        if (const std::optional<int> one = numberOf(item)) {
            channels.push_back(*one);
        } else if (const std::optional<Range> range = rangeOf(item)) {
            const int step = range->least > kHighest24GHz ? kStep : 1;
            for (int channel = range->least; channel <= std::min(range->most, kHighestChannel); channel += step) {
                channels.push_back(channel);
            }
        }
    }
    return channels;
}

} // namespace sandbox
