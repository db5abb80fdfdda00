// SPDX-License-Identifier: MIT
#include "device/model/rows.h"

#include "caltofal.h"
#include "store/reader.h"
#include "value/path.h"
#include "value/refusal.h"

#include <charconv>
#include <strings.h>

namespace device {

const std::string &Row::text(std::string_view name) const {
    static const std::string none;
    const auto found = values.find(name);
    return found == values.end() ? none : found->second;
}

bool Row::flag(std::string_view name, bool absent) const {
    const std::string &word = text(name);
    return has(name) ? word == "1" || strcasecmp(word.c_str(), "true") == 0 : absent;
}

int Row::number(std::string_view name) const {
    const std::string &digits = text(name);
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

std::vector<Row> rowsOf(sandbox::Database &database, const std::string &path) {
    sandbox::GetRequest request;
    request.path = path;
    request.leaf = true;
    std::vector<Row> rows;
    std::string key;
    try {
        sandbox::readParameters(database, request, [&](auto objectKey, auto name, auto value) {
            if (rows.empty() || key != objectKey) {
                key = objectKey;
                rows.push_back({sandbox::pathOf(key) + ".", {}});
            }
            rows.back().values.emplace(name, value);
        });
    } catch (const sandbox::Refusal &refusal) {
        if (refusal.code() != CALTOFAL_ABSENT_OBJECT) {
            throw;
        }
    }
    return rows;
}

} // namespace device
