// SPDX-License-Identifier: MIT
// The driver's list of stations.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const std::string filter = bytes.text(20);
    test::putFile("/tmp/wlan_wave/sta_info_wlan0", bytes.rest());
    WifiStaList list;
    const int count = GetStaInfo("wlan0", filter.empty() ? nullptr : filter.c_str(), &list);
    fuzz::require(count >= 0 && static_cast<uint32_t>(count) == list.count && count <= 128, "a wrong station count");
    for (int i = 0; i < count; ++i) {
        fuzz::require(strnlen(list.entries[i].mac, 128) < 128, "an address without an end");
    }
    return 0;
}
