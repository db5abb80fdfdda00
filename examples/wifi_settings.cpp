// SPDX-License-Identifier: MIT
// Wi-Fi settings: snapshot, comparison, write-back of what changed: wifi_settings CHANNEL WIDTH
#include <caltofal.h>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr int kRadio = 1;
constexpr int kToUi = 1;
constexpr int kToLayer = 0;

// The snapshot's row of a parameter. Objects are named as the layer names them: take the path from here.
const WifiParamRow *find(const WifiParamTable &table, const char *parameter) {
    for (int i = 0; i < table.count; ++i) {
        if (strcmp(table.rows[i].parameter, parameter) == 0) {
            return &table.rows[i];
        }
    }
    return nullptr;
}

// Queues a setting where it differs from what the radio has.
int want(WifiParamTable &current, WifiParamTable &changes, const char *parameter, const char *value) {
    const WifiParamRow *row = find(current, parameter);
    return row ? ComparOrSetParam(&current, &changes, row->object, parameter, value, 0) : -1;
}

int writeBack(WifiParamTable &changes) {
    for (int i = 0; i < changes.count; ++i) {
        const WifiParamRow &row = changes.rows[i];
        printf("%s.%s = %s\n", row.object, row.parameter, row.value);
    }
    MsgHeader message{};
    const int code = faltocal_fromDB(&message, &changes, 0, 0);
    faltocal_finalize(&message);
    return code;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        return 2;
    }
    const auto current = std::make_unique<WifiParamTable>(); // 64 KB each: not for the stack of a thread
    const auto changes = std::make_unique<WifiParamTable>();
    if (GetWireInfoFromFapiToBuff(kRadio, current.get()) != 0) {
        return 1;
    }
    if (const WifiParamRow *width = find(*current, "OperatingChannelBandwidth")) {
        printf("width now: %s\n", BandWidth_ConvStr(width->value, kToUi));
    }
    if (want(*current, *changes, "Channel", argv[1]) != 0 ||
        want(*current, *changes, "OperatingChannelBandwidth", BandWidth_ConvStr(argv[2], kToLayer)) != 0) {
        return 1;
    }
    return writeBack(*changes) == 0 ? 0 : 1;
}
