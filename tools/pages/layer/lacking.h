// SPDX-License-Identifier: MIT
// Pages of a gateway that lacks some of the objects that they ask for: they show what there is, and name the others.
#pragma once

#include "pages/layer/call.h"
#include "pages/layer/request_log.h"

#include <optional>
#include <span>

namespace pages {

// What the gateway lacks, over all calls of a page.
class Lacking {
  public:
    // As pages::ask(). A call that fails for objects which the gateway lacks is made again, with nothing in their
    // place: it fills its record from the others.
    int ask(const std::function<int()> &call, const Expectation &expectation);

    // Whether an object that was asked for is one of them.
    [[nodiscard]] bool has(std::string_view object) const;

    // What it would tell is told by another: it is not named.
    void needNot(std::string_view object);

    // Whether objects below this path are among them; `path` ends in a dot. They are not named then.
    bool needNotBelow(std::string_view path);

    // Adds a line that names them.
    void name(std::vector<std::string> &notes) const;

    // Likewise, for a page of nothing else: throws Failure where the gateway lacks all that was asked for.
    void tell(std::vector<std::string> &notes) const;

  private:
    void add(std::span<const Request> asked);

    std::vector<std::string> objects_;
    std::optional<Request> first_;
    bool answered_ = false;
};

} // namespace pages
