// SPDX-License-Identifier: MIT
#include "exchange/gateway.h"

#include "exchange/demo.h"
#include "exchange/gateway_file.h"
#include "exchange/gateway_import.h"
#include "help/similar.h"
#include "store/store.h"

#include <algorithm>

namespace sandbox {

std::vector<std::string> gatewayNames(const std::string &directory) {
    std::vector<std::string> names = storeNames(directory);
    for (const Demo &demo : demos()) {
        names.emplace_back(demo.name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::string nearGateways(const std::string &name, const std::string &directory) {
    return help::didYouMean(name, gatewayNames(directory));
}

std::unique_ptr<Database> openGateway(const Location &location) {
    if (!storeExists(location)) {
        const Demo *demo = findDemo(location.name);
        if (!demo) {
            throw noGateway(location, nearGateways(location.name, location.directory));
        }
        const std::string file = std::string(demo->name) + ".tr181";
        createGateway(location, readGatewayFile(demo->text, file), file);
    }
    return openStore(location);
}

bool createGateway(const Location &location, const Entries &entries, const std::string &file, ImportReport *report) {
    return createStore(location, [&](Database &database) { importEntries(database, entries, file, report); });
}

} // namespace sandbox
