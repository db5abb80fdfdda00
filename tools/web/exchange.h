// SPDX-License-Identifier: MIT
// One request on its way in and its answer on the way out.
#pragma once

#include "connections.h"
#include "request.h"
#include "response.h"

#include <optional>
#include <string_view>

struct MHD_Connection;

namespace web {

struct Exchange {
    // What the server still reads of a body that it has refused, so that the client comes to read why.
    static constexpr uint64_t kDrainMax = 1048576;

    Connections::Handle connection;
    Request request;
    std::string_view target = {}; // the HTTP library's own text of it
    std::optional<Response> response;
    bool headersTaken = false;

    // Fills the request with what the HTTP library has read, all but the body; `method` and `version` are texts of that
    // library. Throws Refusal for headers that are too large, or have more than one reading.
    void takeHeaders(MHD_Connection *from, const char *method, const char *version);

    // Bytes of the body. A refused one is dropped.
    void takeBody(std::string_view bytes);

    // Whether the answer can go out although the body has not come.
    [[nodiscard]] bool skipsBody() const;

  private:
    bool awaitsContinue_ = false;
    bool isMalformed_ = false;
};

} // namespace web
