// SPDX-License-Identifier: MIT
// The importers of gateways: whatever they take, they write and read back alike.
#include "exchange/gateway_file.h"
#include "bytes.h"
#include "exchange/csv_file.h"
#include "exchange/json_file.h"
#include "value/entry.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace {

using namespace sandbox;

std::string written(const Entries &entries) {
    std::string text;
    for (const Entry &entry : entries) {
        text += gatewayLine(entry) + '\n';
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    const uint8_t format = bytes.byte() % 3;
    const std::string text = bytes.rest();
    try {
        const Entries entries = format == 0   ? readGatewayFile(text, "fuzz")
                                : format == 1 ? readCsv(text, "fuzz")
                                              : readJson(text, "fuzz");
        const std::string once = written(entries);
        if (written(readGatewayFile(once, "written")) != once) {
            fprintf(stderr, "what was written reads back otherwise:\n%s", once.c_str());
            abort();
        }
    } catch (const FileError &) {
        return 0; // refused with a line number
    }
    return 0;
}
