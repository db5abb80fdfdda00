// SPDX-License-Identifier: MIT
// A message to the configuration layer, with the lists that belong to it.
#pragma once

#include "pages/layer/query.h"

#include <memory>

namespace pages {

class Message {
  public:
    // Throws std::bad_alloc.
    Message(uint32_t mainOper, uint32_t listFlags);

    // `subOper` as in CaltofalSubOperation; it counts in changes alone. Throws std::bad_alloc.
    void add(const Object &object, uint32_t subOper);

    [[nodiscard]] MsgHeader *header() const { return header_.get(); }

  private:
    struct Release {
        void operator()(MsgHeader *header) const;
    };

    std::unique_ptr<MsgHeader, Release> header_;
};

// The value objects of a message, an answer's or a request's: of a request, filters are parameters with a value.
std::vector<Object> objectsOf(const MsgHeader &message);

} // namespace pages
