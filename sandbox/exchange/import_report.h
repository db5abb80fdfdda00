// SPDX-License-Identifier: MIT
//
// What became of a dump's values: how many were taken in, and for each reason why one was not, or not as it stood,
// their number and the first of them.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace sandbox {

enum class Reason {
    Misfit,         // kept as text
    FlagSpelling,   // likewise, "TRUE" of a flag
    NoValue,        // kept as empty
    Hidden,         // a secret that the file does not tell
    CounterDiffers, // the store counts
    AliasNumbered,  // instance named by an alias
    UnknownType,    // type taken from the value
    GivenTwice,     // the last one holds
    TooLong,        // from here on: left out
    HoldsNul,
    BadPath,
    Placeholder,
    ValueOfObject,
    ObjectAsValue, // of JSON
    TornRow,
    OpenQuote, // of CSV; taken in all the same
    NoName,    // of an entry of JSON
    ForeignRoot,
    AcsRow,
    OtherDevice,
};

class ImportReport {
  public:
    // Counts one case; `example` is kept when it is the reason's first.
    void count(Reason reason, const std::string &example);

    // Values that the file holds, and those of them that the gateway has now.
    size_t values = 0;
    size_t taken = 0;

    // A sentence of its own on what the gateway is; "" for none.
    std::string nature;

    // "took in N of M values", then a line for each reason, without a line end behind the last one.
    std::string text() const;

    // The reasons alone, in one line; "" for none.
    std::string reasons() const;

  private:
    // A line for each reason, with this before it.
    std::string lines(const std::string &before) const;

    struct Tally {
        size_t number = 0;
        std::string first;
    };
    std::array<Tally, static_cast<size_t>(Reason::OtherDevice) + 1> tallies_;
};

} // namespace sandbox
