// SPDX-License-Identifier: MIT
#include "exchange/import_report.h"

#include <string_view>

namespace sandbox {
namespace {

// In the order of Reason; each is followed by ": NUMBER, first EXAMPLE".
constexpr const char *kReasonWords[] = {
    "kept as text, not of the parameter's type",
    "kept as text, a flag in capitals, on to most pages, but off to IPv6, Wi-Fi clients and end points",
    "kept as empty, without a value in the file",
    "left as it was or empty, hidden in the file",
    "counters that differ from the instances in the file, the store counts these",
    "instances named by an alias, numbered",
    "of an unknown type, taken by the value",
    "given more than once, the last one holds",
    "left out, longer than 1023 bytes",
    "left out, holds a NUL byte",
    "left out, not a path of a data model",
    "left out, a placeholder for instances",
    "left out, a value where an object has the path",
    "left out, an object where a value belongs",
    "left out, a line or row that lacks fields or has too many",
    "a quote that does not end, the file may be cut off or damaged there",
    "left out, an entry without a usable name",
    "left out, below neither Device. nor InternetGatewayDevice.",
    "passed over, rows of the ACS itself",
    "passed over, further devices in the file",
};
static_assert(std::size(kReasonWords) == static_cast<size_t>(Reason::OtherDevice) + 1);

} // namespace

void ImportReport::count(Reason reason, const std::string &example) {
    Tally &tally = tallies_[static_cast<size_t>(reason)];
    if (tally.number++ == 0) {
        tally.first = example;
    }
}

std::string ImportReport::lines(const std::string &before) const {
    std::string lines;
    for (size_t i = 0; i < tallies_.size(); ++i) {
        if (tallies_[i].number != 0) {
            lines +=
                before + kReasonWords[i] + ": " + std::to_string(tallies_[i].number) + ", first " + tallies_[i].first;
        }
    }
    return lines;
}

std::string ImportReport::reasons() const {
    constexpr std::string_view kBetween = "; ";
    const std::string all = lines(std::string(kBetween));
    return all.empty() ? all : all.substr(kBetween.size());
}

std::string ImportReport::text() const {
    const std::string text =
        "took in " + std::to_string(taken) + " of " + std::to_string(values) + " values" + lines("\n  ");
    return nature.empty() ? text : text + "\n  " + nature;
}

} // namespace sandbox
