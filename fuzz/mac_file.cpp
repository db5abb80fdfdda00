// SPDX-License-Identifier: MIT
// The file of the device's MAC addresses.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    fuzz::Text interface(bytes.text(20));
    test::putFile("/opt/lantiq/etc/nextmac.conf", bytes.rest());
    char mac[64] = {};
    const int result = zintu_scapi_getMacFromFile(interface.get(), mac);
    fuzz::require(result == 0 || result == -1, "a result out of range");
    fuzz::require(result == 0 || mac[0] == '\0', "an address in spite of a failure");
    return 0;
}
