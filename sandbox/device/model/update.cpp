// SPDX-License-Identifier: MIT
#include "device/model/update.h"

#include "device/model/rows.h"
#include "store/model.h"
#include "store/schema.h"
#include "value/accepted_value.h"
#include "value/path.h"

#include <algorithm>

namespace device {
namespace {

using namespace sandbox;

constexpr std::pair<const char *, const char *> kJoined[] = {
    {"Active", "true"}, {"AuthenticationState", "true"}, {"SignalStrength", "-54"}, {"Noise", "-92"}};

// False when the object has no such parameter.
bool setOwn(Database &database, int64_t object, const std::string &name, const std::string &value) {
    const std::optional<ParameterRow> row = findParameter(database, object, name);
    if (!row) {
        return false;
    }
    Definitions definitions(database);
    const std::string accepted = acceptedValue(definitions.get(row->definition).type, name, value);
    Model(database, definitions, Templates()).setValue(object, *row, accepted, accepted);
    return true;
}

} // namespace

bool setParameter(Database &database, const std::string &path, const std::string &value) {
    const size_t dot = path.rfind('.');
    const std::optional<std::string> key = keyOf(path.substr(0, dot));
    const std::optional<ObjectRow> object = key ? findObject(database, *key) : std::nullopt;
    return dot != std::string::npos && object && setOwn(database, object->id, path.substr(dot + 1), value);
}

bool joinStation(Database &database, const std::string &accessPoint, const std::string &mac) {
    const std::optional<std::string> key = keyOf(accessPoint + "AssociatedDevice.");
    const std::optional<ObjectRow> table = key ? findObject(database, *key) : std::nullopt;
    if (!table || table->kind != ObjectKind::Table) {
        return false;
    }
    const std::vector<Row> stations = rowsOf(database, accessPoint + "AssociatedDevice.");
    if (std::any_of(stations.begin(), stations.end(), [&](const Row &row) { return row.text("MACAddress") == mac; })) {
        return true;
    }
    const std::string instance = instanceKey(*key, table->last + 1);
    Definitions definitions(database);
    const Templates templates(database, instance);
    const int64_t object = Model(database, definitions, templates).ensureObject(instance, kRunning);
    setOwn(database, object, "MACAddress", mac);
    for (const auto &[name, value] : kJoined) {
        setOwn(database, object, name, value);
    }
    return true;
}

} // namespace device
