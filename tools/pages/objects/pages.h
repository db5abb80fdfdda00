// SPDX-License-Identifier: MIT
// Any object of the data model: read and changed. Throws Failure.
#pragma once

#include "pages/layer/query.h"
#include "pages/report.h"

#include <string>
#include <vector>

namespace pages::objects {

// "*" in a path stands for any instance or name.
struct Query {
    std::vector<Object> objects;       // with the parameters wanted; none: all
    std::vector<Parameter> where = {}; // of the one object: only instances whose parameters have those values
    bool leaf = false;                 // its own parameters, nothing below it
    bool defaults = false;             // the values after a factory reset
    bool names = false;                // what stands directly below, without values
    bool types = false;                // type, access and default instead of values, where the layer tells them
    bool valuesOnly = false;           // a line each, in the raw text
};

// Throws Usage for what does not go together.
void check(const Query &query);
Report read(const Query &asked);

// Objects with all below them; one that is none is taken for a parameter, "OBJECT.PARAM".
std::vector<Object> readWhole(std::vector<Object> objects);

// All objects of a change go in one message, which is done whole or not at all. `storeOnly`: not applied.
Report set(const std::vector<Object> &objects, bool storeOnly);
// Writes only what differs from what the gateway holds, as "changes" with "object", "parameter", "from" and "to"; with
// `storeOnly` all that is wanted, as what is stored cannot be read. `dryRun`: tells what would be written, and no more.
Report setDiffering(const std::vector<Object> &wanted, bool dryRun, bool storeOnly);
Report add(const std::vector<Object> &tables, bool storeOnly);
Report remove(const std::vector<std::string> &instances, bool storeOnly);

// An instance by one parameter, and the value of another (127 characters at most).
struct Search {
    std::string table, filter, value, wanted;
};
Report find(const Search &search);

} // namespace pages::objects
