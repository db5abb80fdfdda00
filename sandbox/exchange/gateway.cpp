// SPDX-License-Identifier: MIT
#include "exchange/gateway.h"

#include "exchange/demo.h"
#include "exchange/gateway_file.h"
#include "exchange/gateway_import.h"
#include "store/store.h"

namespace sandbox {

std::unique_ptr<Database> openGateway(const Location &location) {
    if (!storeExists(location)) {
        if (const Demo *demo = findDemo(location.name)) {
            const std::string file = std::string(demo->name) + ".tr181";
            createGateway(location, readGatewayFile(demo->text, file), file);
        }
    }
    return openStore(location);
}

bool createGateway(const Location &location, const Entries &entries, const std::string &file, ImportReport *report) {
    return createStore(location, [&](Database &database) { importEntries(database, entries, file, report); });
}

} // namespace sandbox
