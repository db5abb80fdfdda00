// SPDX-License-Identifier: MIT
// The radio behind a network interface.
#include "caltofal.h"
#include "frame/bounded_text.h"
#include "frame/pipe.h"
#include "wifi/driver/radio_text.h"

using namespace frame;
using namespace wifi;

int GetPhyNumber(const char *ifname) {
    if (!ifname || !*ifname) {
        return -1;
    }
    const BoundedText<128> command("iw dev %s info | grep \"wiphy\"", ifname);
    Pipe pipe(command);
    if (!pipe.started()) {
        return -1;
    }
    char text[1024 + 1];
    const size_t length = pipe.read(text, sizeof(text) - 1);
    text[length] = '\0';
    return parsePhyNumber(text);
}
