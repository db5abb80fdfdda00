// SPDX-License-Identifier: MIT
#include "store/definition.h"

namespace sandbox {

int64_t Definitions::idOf(const Definition &definition) {
    auto key = std::make_tuple(definition.type.text(), definition.writable, definition.fallback);
    if (const auto found = ids_.find(key); found != ids_.end()) {
        return found->second;
    }
    const auto &[type, writable, fallback] = key;
    Statement(database_, "INSERT OR IGNORE INTO definition(type, writable, fallback) VALUES(?1, ?2, ?3)", type,
              writable, fallback)
        .run();
    Statement find(database_, "SELECT id FROM definition WHERE type = ?1 AND writable = ?2 AND fallback = ?3", type,
                   writable, fallback);
    find.step();
    const int64_t id = find.integer(0);
    definitions_.insert_or_assign(id, definition);
    ids_.emplace(std::move(key), id);
    return id;
}

const Definition &Definitions::get(int64_t id) {
    if (const auto found = definitions_.find(id); found != definitions_.end()) {
        return found->second;
    }
    Statement find(database_, "SELECT type, writable, fallback FROM definition WHERE id = ?1", id);
    find.step();
    Definition definition{ValueType::parse(find.text(0)), find.integer(1) != 0, std::string(find.text(2))};
    return definitions_.emplace(id, std::move(definition)).first->second;
}

} // namespace sandbox
