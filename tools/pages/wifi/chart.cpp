// SPDX-License-Identifier: MIT
#include "pages/wifi/chart.h"

#include "pages/text.h"

#include <algorithm>
#include <iterator>

namespace pages::wifi {
namespace {

constexpr int kReach = 2;  // channels at 2.4 GHz that 20 MHz take on either side
constexpr int kSecond = 4; // channels from the primary to the secondary one there
constexpr int kWide = 40;  // MHz: with a secondary channel
constexpr int kStep = 4;   // from one channel at 5 GHz to the next
constexpr size_t kLabelWidth = 9;
constexpr size_t kNameMax = 16;

struct Axis {
    const char *title;
    std::vector<int> channels;
    size_t width;      // of a channel, in letters
    size_t labelEvery; // so many channels
};

const Axis &axisOf(int channel) {
    static const Axis kAxis24 = {"2.4 GHz", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}, 3, 1};
    static const Axis kAxis5 = {"5 GHz",
                                {36,  40,  44,  48,  52,  56,  60,  64,  100, 104, 108, 112, 116,
                                 120, 124, 128, 132, 136, 140, 144, 149, 153, 157, 161, 165},
                                2,
                                2};
    return channel <= kLast24GHz ? kAxis24 : kAxis5;
}

// Blocks at 5 GHz begin there; wide channels do not cross them.
int blockOf(int channel) {
    constexpr int kBlocks[] = {149, 100, 36};
    const auto *const found =
        std::find_if(std::begin(kBlocks), std::end(kBlocks), [&](int block) { return channel >= block; });
    return found == std::end(kBlocks) ? channel : *found;
}

std::string padded(std::string text, size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

bool covers(const ChannelSpan &span, int channel) {
    return channel >= span.first && channel <= span.last;
}

std::string trimmed(const std::string &line) {
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::string headOf(const Axis &axis) {
    std::string line = padded(axis.title, kLabelWidth);
    for (size_t i = 0; i < axis.channels.size(); i += axis.labelEvery) {
        line += padded(std::to_string(axis.channels[i]), axis.width * axis.labelEvery);
    }
    return trimmed(line);
}

// Its first letters, printable in ASCII or UTF-8 as the terminal wants it: whoever prints the chart escapes the rest.
std::string nameOf(const ChartedNetwork &network) {
    std::string result;
    size_t letters = 0;
    for (size_t at = 0; at < network.name.size(); ++letters) {
        const size_t length = std::max<size_t>(utf8Length(std::string_view(network.name).substr(at)), 1);
        if (letters == kNameMax) {
            return result + "...";
        }
        result += network.name.substr(at, length);
        at += length;
    }
    return result;
}

ChartLine lineOf(const Axis &axis, const ChartedNetwork &network) {
    const ChannelSpan span = spanOf(network);
    const bool own = network.dbm.isNull();
    std::string line = padded(own ? "own" : std::to_string(network.dbm.whole()) + " dBm", kLabelWidth);
    for (const int channel : axis.channels) {
        const char fill = channel == network.channel ? '#' : own ? '-' : '=';
        line += std::string(axis.width, covers(span, channel) ? fill : ' ');
    }
    return {line, nameOf(network)};
}

std::string useOf(const Axis &axis, const std::vector<ChartedNetwork> &networks) {
    std::string line = padded("others", kLabelWidth);
    for (const int channel : axis.channels) {
        const auto count = std::count_if(networks.begin(), networks.end(), [&](const ChartedNetwork &network) {
            return !network.dbm.isNull() && covers(spanOf(network), channel);
        });
        line += padded(count == 0 ? "." : count > 9 ? "+" : std::to_string(count), axis.width);
    }
    return trimmed(line);
}

bool isBefore(const ChartedNetwork &one, const ChartedNetwork &other) {
    if (one.dbm.isNull() != other.dbm.isNull()) {
        return one.dbm.isNull();
    }
    return one.dbm.whole() > other.dbm.whole();
}

} // namespace

bool isSideUnknown(const ChartedNetwork &network) {
    const bool known = network.side == "upper" || network.side == "lower";
    return network.channel <= kLast24GHz && network.width >= kWide && !known;
}

ChannelSpan spanOf(const ChartedNetwork &network) {
    const int channel = network.channel;
    if (channel <= kLast24GHz) {
        const bool wide = network.width >= kWide;
        return {channel - kReach - (wide && network.side == "lower" ? kSecond : 0),
                channel + kReach + (wide && network.side == "upper" ? kSecond : 0)};
    }
    const int count = std::max(network.width / 20, 1);
    const int block = blockOf(channel);
    const int first = block + (channel - block) / (count * kStep) * count * kStep;
    return {first, first + (count - 1) * kStep};
}

std::vector<ChartLine> chartOf(std::vector<ChartedNetwork> networks) {
    std::stable_sort(networks.begin(), networks.end(), isBefore);
    std::vector<ChartLine> result;
    for (const Axis *axis : {&axisOf(1), &axisOf(kLast24GHz + 1)}) {
        std::vector<ChartedNetwork> here;
        std::copy_if(networks.begin(), networks.end(), std::back_inserter(here),
                     [&](const ChartedNetwork &one) { return &axisOf(one.channel) == axis; });
        if (here.empty()) {
            continue;
        }
        if (!result.empty()) {
            result.emplace_back();
        }
        result.push_back({headOf(*axis)});
        for (const ChartedNetwork &network : here) {
            result.push_back(lineOf(*axis, network));
        }
        result.push_back({useOf(*axis, here)});
    }
    return result;
}

} // namespace pages::wifi
