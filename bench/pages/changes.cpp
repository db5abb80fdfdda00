// SPDX-License-Identifier: MIT
// What a saved page changes: each of 100 wanted settings compared with a table of 100 rows, of which ten differ.
#include "by_hand.h"
#include "page.h"

#include <memory>

namespace {

constexpr int kRows = 100;
constexpr int kChanged = 10;

struct Wanted {
    char object[64];
    char parameter[64];
    char value[64];
};

// What is held, and what is wanted instead.
struct Settings {
    Settings() {
        for (int i = 0; i < kRows; ++i) {
            Wanted &setting = wanted[i];
            snprintf(setting.object, sizeof(setting.object), "Device.WiFi.AccessPoint.%d", 1 + i / 10);
            snprintf(setting.parameter, sizeof(setting.parameter), "X_ZINTU_Setting%d", i % 10);
            snprintf(setting.value, sizeof(setting.value), "value %d", i);
            SetParam(&held, setting.object, setting.parameter, i % kChanged == 0 ? "another" : setting.value);
        }
    }
    WifiParamTable held = {};
    Wanted wanted[kRows] = {};
};

Settings &settings() {
    static const auto all = std::make_unique<Settings>();
    return *all;
}

int libraryPage(WifiParamTable *changes) {
    Settings &all = settings();
    int code = 0;
    for (const Wanted &setting : all.wanted) {
        code |= ComparOrSetParam(&all.held, changes, setting.object, setting.parameter, setting.value, 0);
    }
    return code;
}

const WifiParamRow *find(const WifiParamTable &table, const Wanted &setting) {
    for (int32_t i = 0; i < table.count; ++i) {
        const WifiParamRow &row = table.rows[i];
        if (strcmp(row.parameter, setting.parameter) == 0 && strcmp(row.object, setting.object) == 0) {
            return &row;
        }
    }
    return nullptr;
}

int floorPage(WifiParamTable *changes) {
    const Settings &all = settings();
    for (const Wanted &setting : all.wanted) {
        const WifiParamRow *row = find(all.held, setting);
        if (!row || strcmp(row->value, setting.value) != 0) {
            WifiParamRow &change = changes->rows[changes->count++];
            by_hand::copy(change.object, setting.object);
            by_hand::copy(change.parameter, setting.parameter);
            by_hand::copy(change.value, setting.value);
        }
    }
    return 0;
}

bench::Page changes() {
    bench::Page page = bench::page<libraryPage, floorPage>("changes-100", "", bench::Growth::None);
    page.totalLimit = 1.323;
    page.ownLimit = 1.314;
    return page;
}

const bench::AddPage kAdded(changes());

} // namespace
