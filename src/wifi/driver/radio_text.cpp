// SPDX-License-Identifier: MIT
#include "wifi/driver/radio_text.h"

#include "frame/text.h"

#include <cstring>

using namespace frame;

namespace wifi {

int parsePhyNumber(const char *text) {
    constexpr char kWord[] = "wiphy";
    const char *found = strstr(text, kWord);
    if (!found) {
        return -1;
    }
    const char *separator = found + sizeof(kWord) - 1;
    return number(*separator ? separator + 1 : separator);
}

const char *findCurrentChannel(const char *line) {
    constexpr char kLabel[] = "Current Channel=";
    const char *found = strstr(line, kLabel);
    return found ? found + sizeof(kLabel) - 1 : nullptr;
}

} // namespace wifi
