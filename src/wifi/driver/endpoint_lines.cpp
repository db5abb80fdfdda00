// SPDX-License-Identifier: MIT
#include "wifi/driver/endpoint_lines.h"

#include "caltofal.h"
#include "frame/text.h"

#include <cstring>

using namespace frame;

namespace wifi {

bool isPeer(char *line) {
    line[strcspn(line, "\n")] = '\0';
    return isValidMacAddress(line) != 0;
}

bool ChannelFigures::addLine(const char *line) {
    const int figure = number(line);
    if (figure != 0 && values_) {
        values_[stored_++] = figure;
    }
    return figure != 0;
}

} // namespace wifi
