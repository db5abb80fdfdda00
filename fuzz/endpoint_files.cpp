// SPDX-License-Identifier: MIT
// The driver's files of an endpoint: its peer, and the figures of its channel.
#include "lines.h"
#include "wifi/driver/endpoint_lines.h"

#include <vector>

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    std::vector<std::string> lines;
    fuzz::eachLine(fuzz::Bytes(data, size).rest(), [&](char *line) { lines.emplace_back(line); });
    std::vector<int32_t> values(lines.size());
    wifi::ChannelFigures figures(values.data());
    for (const std::string &content : lines) {
        fuzz::Text line(content);
        if (wifi::isPeer(line.get())) {
            fuzz::require(strlen(line.get()) >= 12, "a peer of fewer characters than an address has digits");
        }
        if (!figures.addLine(content.c_str())) {
            break;
        }
    }
    fuzz::require(figures.any() == (!values.empty() && values[0] != 0), "a figure was lost");
    return 0;
}
