// SPDX-License-Identifier: MIT
#include "cal/cal_sandbox.h"
#include "cal/connection.h"
#include "exchange/gateway_file.h"
#include "store/model.h"
#include "value/path.h"

#include <string>

namespace sandbox {
namespace {

std::string definitionText(Database &database, std::string_view parameter) {
    const size_t dot = parameter.rfind('.');
    const std::optional<std::string> key =
        dot == std::string_view::npos ? std::nullopt : keyOf(parameter.substr(0, dot));
    const std::optional<ObjectRow> object = key ? findObject(database, *key) : std::nullopt;
    const std::optional<ParameterRow> row =
        object ? findParameter(database, object->id, parameter.substr(dot + 1)) : std::nullopt;
    if (!row) {
        return "";
    }
    const Definition definition = Definitions(database).get(row->definition);
    Entry entry{};
    entry.name = parameter.substr(dot + 1);
    entry.type = definition.type;
    entry.writable = definition.writable;
    if (!definition.fallback.empty()) {
        entry.fallback = definition.fallback;
    }
    return gatewayAnnotations(entry);
}

} // namespace
} // namespace sandbox

extern "C" __attribute__((visibility("default"))) const char *cal_sandboxDefinition(const char *parameter) {
    using namespace sandbox;
    thread_local std::string text;
    try {
        text.clear();
        Connection::instance().with(Location::current(), [&](Database &database) {
            const Transaction transaction(database, Transaction::Kind::Read);
            text = definitionText(database, parameter);
        });
        return text.c_str();
    } catch (const std::exception &) {
        return "";
    }
}
