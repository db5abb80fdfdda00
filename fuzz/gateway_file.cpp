// SPDX-License-Identifier: MIT
// The importers of gateways and of dumps: whatever they take, they write and read back alike.
#include "exchange/gateway_file.h"

#include "bytes.h"
#include "exchange/file_format.h"

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
    constexpr FileFormat kFormats[] = {FileFormat::Gateway, FileFormat::Csv, FileFormat::Json};
    const FileFormat format = kFormats[bytes.byte() % std::size(kFormats)];
    try {
        const Entries entries = contentOf(bytes.rest(), "fuzz", format).entries;
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
