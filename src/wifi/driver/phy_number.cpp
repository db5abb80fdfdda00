// SPDX-License-Identifier: MIT
#include "wifi/driver/radio_text.h"

#include "caltofal.h"
#include "frame/pipe.h"
#include "wifi/driver/formatted.h"

#include <cstdlib>
#include <cstring>

using namespace frame;
using namespace wifi;

namespace wifi {

int parsePhyNumber(const char *text) {
    constexpr char kWord[] = "wiphy";
    const char *found = strstr(text, kWord);
    if (!found) {
        return -1;
    }
    const char *separator = found + sizeof(kWord) - 1;
    return atoi(*separator ? separator + 1 : separator);
}

} // namespace wifi

int GetPhyNumber(const char *ifname) {
    if (!ifname || !*ifname) {
        return -1;
    }
    const Formatted<128> command("iw dev %s info | grep \"wiphy\"", ifname);
    Pipe pipe(command);
    if (!pipe.started()) {
        return -1;
    }
    char text[1024 + 1];
    const size_t length = pipe.read(text, sizeof(text) - 1);
    text[length] = '\0';
    return parsePhyNumber(text);
}
