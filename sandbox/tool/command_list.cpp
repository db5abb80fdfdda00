// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/gateway.h"
#include "store/store.h"
#include "tool/command.h"
#include "tool/json_rows.h"
#include "value/refusal.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace sandbox {
namespace {

struct Gateway {
    std::string name;
    bool exists = false;
    bool demo = false;
    bool chosen = false;
    std::optional<int64_t> parameters; // empty: none yet, or the store cannot be read
    std::string trouble;
};

void countParameters(Gateway &gateway) {
    try {
        const std::unique_ptr<Database> database = openStore(Location::named(gateway.name));
        Statement count(*database, "SELECT count(*) FROM parameter");
        count.step();
        gateway.parameters = count.integer(0);
    } catch (const std::runtime_error &error) {
        gateway.trouble = error.what();
    }
}

std::vector<Gateway> gateways(const Tool &tool) {
    const Location chosen = tool.location();
    const std::vector<std::string> stores = storeNames(chosen.directory);
    std::vector<Gateway> result;
    for (const std::string &name : gatewayNames(chosen.directory)) {
        Gateway gateway{name,
                        std::binary_search(stores.begin(), stores.end(), name),
                        findDemo(name) != nullptr,
                        name == chosen.name,
                        std::nullopt,
                        {}};
        if (gateway.exists) {
            countParameters(gateway);
        }
        result.push_back(std::move(gateway));
    }
    return result;
}

void printTable(const std::vector<Gateway> &rows) {
    size_t width = 0;
    for (const Gateway &row : rows) {
        width = std::max(width, row.name.size());
    }
    for (const Gateway &row : rows) {
        std::cout << (row.chosen ? "* " : "  ") << std::left << std::setw(static_cast<int>(width)) << row.name << "  ";
        if (row.parameters) {
            std::cout << std::right << std::setw(7) << *row.parameters << " parameters\n";
        } else {
            std::cout << (row.exists ? row.trouble : "demo, made on first use") << '\n';
        }
    }
}

JsonRow toJson(const Gateway &gateway) {
    JsonRow row{{"name", gateway.name},
                {"exists", gateway.exists},
                {"demo", gateway.demo},
                {"chosen", gateway.chosen},
                {"parameters", gateway.parameters},
                {"file", Location::named(gateway.name).storeFile()}};
    if (!gateway.trouble.empty()) {
        row.emplace_back("trouble", gateway.trouble);
    }
    return row;
}

void printJson(const std::vector<Gateway> &gateways) {
    std::vector<JsonRow> rows;
    rows.reserve(gateways.size());
    for (const Gateway &gateway : gateways) {
        rows.push_back(toJson(gateway));
    }
    printJson(rows);
}

} // namespace

void addList(Command &root, Tool &tool) {
    auto json = makeOptions<bool>();
    Command command = root.add("list", "Show the gateways, and the demos that are made on first use");
    command.flag("--json", *json, "As JSON");
    command.footer("The chosen gateway has an asterisk.");
    command.runs([&tool, json] { *json ? printJson(gateways(tool)) : printTable(gateways(tool)); });
}

} // namespace sandbox
