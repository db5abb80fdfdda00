// SPDX-License-Identifier: MIT
#include "pages/wifi/signal.h"

#include <algorithm>
#include <iterator>

namespace pages::wifi {
namespace {

// The weakest signal of one bar, of two, and so on: what video calls, browsing, mail and bare association need.
constexpr int64_t kSteps[] = {-85, -75, -67, -55};

} // namespace

Cell signalCell(const Value &dbm) {
    Cell cell = cellOf(dbm);
    if (dbm.isNumber()) {
        const int64_t strength = dbm.whole();
        cell.bars = static_cast<int>(
            std::count_if(std::begin(kSteps), std::end(kSteps), [&](int64_t step) { return strength >= step; }));
        cell.style = cell.bars >= 3 ? Style::Good : cell.bars <= 1 ? Style::Bad : Style::Plain;
    }
    return cell;
}

} // namespace pages::wifi
