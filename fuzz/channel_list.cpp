// SPDX-License-Identifier: MIT
// What `iw` prints of a radio and its channels.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const int radio = bytes.byte() % 4;
    test::platform().otherwise({0, {test::object("Device.WiFi.Radio.1", {"IEEE80211hEnabled=" + bytes.text(8)})}});
    test::shell().onPopen = [&](const std::string &command) {
        return command.find("info") != std::string::npos ? bytes.text(400) : bytes.rest();
    };
    WifiChannelList list;
    const int count = GetChannelList("wlan0", radio, &list);
    fuzz::require(count >= 0 && count <= 100, "a wrong channel count");
    for (int i = 0; i < count; ++i) {
        const int32_t(&widths)[4] = list.entries[i].bandwidths;
        fuzz::require(widths[0] == 20 || widths[0] == 0, "widths that do not begin with 20 MHz");
    }
    return 0;
}
