// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"
#include "value/value_type.h"

#include <map>
#include <tuple>

namespace sandbox {

// What values a parameter takes.
struct Definition {
    ValueType type;
    bool writable = false;
    std::string fallback; // the default value

    bool operator==(const Definition &) const = default;
};

// The definitions of one store, read once each. To be used within one transaction.
class Definitions {
  public:
    explicit Definitions(Database &database) : database_(database) {}

    // The number of a definition, which is stored when it is new.
    int64_t idOf(const Definition &definition);
    const Definition &get(int64_t id);

  private:
    Database &database_;
    std::map<std::tuple<std::string, bool, std::string>, int64_t> ids_;
    std::map<int64_t, Definition> definitions_;
};

} // namespace sandbox
