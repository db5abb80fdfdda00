// SPDX-License-Identifier: MIT
#include "pages/wifi/pace.h"

#include "pages/objects/words.h"
#include "pages/wifi/interface.h"

namespace cli::wifi {
namespace {

constexpr int kSecond = 1000;
constexpr int kUnitMax = 60 * kSecond;

} // namespace

void addPace(CLI::App &command, std::string &target) {
    addOption(command, "--pace", target, "MS", "How long a unit of the retry table lasts, 1000 where not given");
}

Pace paceOf(const uint8_t (&intervals)[40], const std::string &milliseconds) {
    const int unit = milliseconds.empty() ? kSecond : checkedNumber(milliseconds, "--pace", 1, kUnitMax);
    return {intervals, std::chrono::milliseconds(unit)};
}

} // namespace cli::wifi
