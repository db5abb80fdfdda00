// SPDX-License-Identifier: MIT
// What is measured: a page of the library, and the same page by hand. Each page is one file in pages/ that defines a
// `const AddPage`.
#pragma once

#include "platform/answers.h"

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

// One side of a page: fills the record; a code.
using Side = int (*)(void *record);

struct Page {
    std::string name;
    Answers answers;   // what the layer holds
    Growth growth;     // how it grows
    size_t recordSize; // both sides fill a zeroed record of this size and answer the same code
    Side library;
    Side floor;
    double totalLimit = 0; // the most that the library may cost where the floor costs 1, the platform included
    double ownLimit = 0;   // the most that its own work may be where the floor's is 1; 0 here or above: no limit
};

// All pages, in the order of their names.
const std::vector<Page> &pages();

struct AddPage {
    explicit AddPage(Page page);
};

namespace detail {

template <class Function>
struct RecordOf;
template <class Record>
struct RecordOf<int (*)(Record *)> {
    using Type = Record;
};

template <auto Function>
int call(void *record) {
    return Function(static_cast<typename RecordOf<decltype(Function)>::Type *>(record));
}

} // namespace detail

// A page of two functions `int (Record *)`; the answers are text (platform/answers.h).
template <auto Library, auto Floor>
Page page(const std::string &name, std::string_view answers, Growth growth) {
    using Record = typename detail::RecordOf<decltype(Library)>::Type;
    return {.name = name,
            .answers = parseAnswers(answers),
            .growth = growth,
            .recordSize = sizeof(Record),
            .library = detail::call<Library>,
            .floor = detail::call<Floor>};
}

// The page with its limits: what was reached plus 2 %, or less.
inline Page limited(Page page, double total, double own) {
    page.totalLimit = total;
    page.ownLimit = own;
    return page;
}

// Runs one side once on a zeroed record of the page's size, then takes back what it left unreleased. Its code.
int runOnce(const Page &page, Side side, void *record);

} // namespace bench

// The measured call: instructions are counted inside it only.
extern "C" int caltofal_measured(bench::Side side, void *record);
