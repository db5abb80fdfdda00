// SPDX-License-Identifier: MIT
// What `iwlist` and `iw` print of the channel and the radio in use.
#include "lines.h"
#include "wifi/driver/radio_text.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string output = fuzz::Bytes(data, size).rest();
    fuzz::eachLine(output, [](const char *line) {
        const char *channel = wifi::findCurrentChannel(line);
        fuzz::require(!channel || (channel > line && channel <= line + strlen(line)), "a channel outside its line");
    });
    fuzz::Text text(output);
    wifi::parsePhyNumber(text.get());
    return 0;
}
