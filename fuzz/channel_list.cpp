// SPDX-License-Identifier: MIT
// What `iw` prints of a radio and its channels.
#include "lines.h"
#include "wifi/driver/channel_lines.h"
#include "wifi/driver/radio_text.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    const bool only24GHz = bytes.byte() % 4 == 1;
    const wifi::ChannelRules rules = {bytes.text(8) == "true", only24GHz};
    fuzz::Text info(bytes.text(400));
    wifi::parsePhyNumber(info.get());
    WifiChannelList list = {};
    fuzz::eachLine(bytes.rest(), [&](char *line) {
        if (wifi::hasRoom(list)) {
            wifi::addChannelLine(line, rules, list);
        }
    });
    fuzz::require(list.count <= 100, "a wrong channel count");
    for (uint32_t i = 0; i < list.count; ++i) {
        fuzz::require(list.entries[i].bandwidths[0] == 20, "widths that do not begin with 20 MHz");
        fuzz::require(!only24GHz || list.entries[i].frequency < 2485, "a channel above the 2.4 GHz band");
    }
    return 0;
}
