// SPDX-License-Identifier: MIT
// MAC addresses allotted to interfaces: lines of the form "eth0_1> AA:BB:CC:DD:EE:FF".
#include "caltofal.h"
#include "frame/text.h"
#include "frame/trace.h"

#include <cstdio>
#include <cstring>
#include <memory>

using namespace frame;

namespace {

struct CloseFile {
    void operator()(FILE *file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

} // namespace

int zintu_scapi_getMacFromFile(const char *interfaceName, char *macOut) {
    const File file(fopen("/opt/lantiq/etc/nextmac.conf", "ab+"));
    if (!file) {
        traceError({1240}, "fopen is Failure\n");
        return -1;
    }
    char key[32];
    snprintf(key, sizeof(key), "%s>", interfaceName);
    char line[64];
    char *entry = nullptr;
    while (!entry && fgets(line, sizeof(line), file.get())) {
        line[strcspn(line, "\n")] = '\0';
        entry = strstr(line, key);
    }
    if (!entry) {
        traceError({1275}, "Error = Couldn't get mac for the interface\n");
        return -1;
    }
    char *rest = nullptr;
    strtok_r(entry, "> ", &rest);
    const char *mac = strtok_r(nullptr, "> ", &rest);
    if (!mac) {
        traceError({1260}, "strtok_r is Failure\n");
        return -1;
    }
    strcpy(macOut, mac);
    traceVola({Unit::FaltoCal, 1279}, "GOT MAC FROM CONFIG FILE\n");
    return 0;
}
