// SPDX-License-Identifier: MIT
// The driver's files of an endpoint: its peer, and the figures of its channel.
#include "fuzz.h"

#include <algorithm>

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::startOver();
    const std::string content = fuzz::Bytes(data, size).rest();
    test::putFile("/tmp/wlan_wave/wlan0_peer_info", content);
    char mac[128] = {};
    const int peer = GetEPContection("wlan0", mac);
    fuzz::require((peer == 0 || peer == 1) && strnlen(mac, sizeof(mac)) < sizeof(mac), "an address without an end");
    std::vector<int32_t> values(static_cast<size_t>(std::count(content.begin(), content.end(), '\n')) +
                                content.size() / 100 + 2);
    const int stored = ReqEPChannelInfo("wlan0", values.data());
    fuzz::require(stored == 0 || stored == 1, "a result out of range");
    return 0;
}
