// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/dump/row.h"
#include "value/entry.h"

namespace sandbox {

// Says type, access and default of a dump's parameters.
class Typing {
  public:
    // Whether numbers in place of type words are the usual ones is judged by all rows together.
    explicit Typing(const std::vector<DumpRow> &rows);

    // Sets them in the entry of the row, which has path, name and value.
    void describe(const DumpRow &row, Entry &entry, ImportReport &report);

  private:
    bool numbers_;
    std::string path_, pattern_; // of the last object
};

} // namespace sandbox
