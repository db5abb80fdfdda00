// SPDX-License-Identifier: MIT
#include "pages/process/output.h"

#include <atomic>

namespace pages {
namespace {

std::atomic<Sink> taker{nullptr};

} // namespace

void takeOutput(Sink sink) {
    taker = sink;
}

bool outputIsTaken() {
    return taker != nullptr;
}

void output(Source source, std::string_view text) {
    if (const Sink sink = taker) {
        sink(source, text);
    }
}

} // namespace pages
