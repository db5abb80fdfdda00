// SPDX-License-Identifier: MIT
// What `iwlist` and `iw` print of the channel and the radio in use.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::startOver();
    test::shell().onPopen = [output = fuzz::Bytes(data, size).rest()](const std::string &) { return output; };
    int channel = -77;
    fuzz::require(GetCurrentChannel("wlan0", 0, &channel) == 1, "the tool ran");
    GetPhyNumber("wlan0");
    return 0;
}
