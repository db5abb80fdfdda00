// SPDX-License-Identifier: MIT
#include "exchange/dump/capture.h"

namespace sandbox {

Dump captureDump(const Entries &entries) {
    Dump dump;
    for (const Entry &entry : entries) {
        if (entry.kind == Entry::Kind::Recording) {
            continue;
        }
        DumpRow row;
        row.path = entry.fullPath();
        row.object = entry.name.empty();
        row.type = entry.kind == Entry::Kind::Object && entry.writable ? "table" : "";
        row.value = entry.value;
        row.exact = entry.type;
        row.fallback = entry.fallback.value_or("");
        row.writable = entry.writable;
        row.line = entry.line;
        dump.rows.push_back(std::move(row));
    }
    return dump;
}

} // namespace sandbox
