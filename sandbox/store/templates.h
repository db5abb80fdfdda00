// SPDX-License-Identifier: MIT
//
// What the instances of tables are made of: the "{i}" entries of a gateway.
#pragma once

#include "store/database.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

struct TemplateParameter {
    std::string name;
    int64_t definition;
};

struct TemplateObject {
    bool writable = false; // of a pattern that ends in "{i}.": a set may add and delete instances
    std::vector<TemplateParameter> parameters;
};

// A template that applies to an object, or to something below it.
struct TemplateMatch {
    std::string_view pattern;
    const TemplateObject *object;
    std::vector<std::string_view> remainder; // the pattern's components after those that the object matched
};

class Templates {
  public:
    Templates() = default;
    // Reads those that may apply to the object `key` or to something below it. An empty key reads all.
    Templates(Database &database, std::string_view key);

    // The templates of the object `key` and of everything below it, the more general ones first. All for an empty key.
    std::vector<TemplateMatch> matching(std::string_view key) const;

    // By pattern.
    const std::map<std::string, TemplateObject, std::less<>> &all() const { return objects_; }

  private:
    std::map<std::string, TemplateObject, std::less<>> objects_;
};

} // namespace sandbox
