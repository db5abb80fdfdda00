// SPDX-License-Identifier: MIT
// The requests that the library hands to the configuration layer, in order, with the layer's own answer. A page of the
// library asks for several objects and answers one code; a log knows which of the requests failed and why.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace pages {

struct Request {
    const char *verb;                 // "get", "set" or "store"
    std::vector<std::string> objects; // as they were asked for
    int code;                         // the layer's
    std::string reason;               // the layer's own words for a refusal; empty where it has none
};

// Notes the requests of its thread while it lives. Several may live at a time, the later within the earlier.
class RequestLog {
  public:
    RequestLog();
    RequestLog(const RequestLog &) = delete;
    RequestLog &operator=(const RequestLog &) = delete;
    ~RequestLog();

    // Later requests invalidate the span.
    [[nodiscard]] std::span<const Request> requests() const { return requests_; }

    // The reason of the last request; "" where the layer gave none.
    [[nodiscard]] std::string reason() const { return requests_.empty() ? "" : requests_.back().reason; }

    // To all logs of this thread.
    static void note(const Request &request);

  private:
    RequestLog *outer_;
    std::vector<Request> requests_;
};

// "Device.A" or "Device.A, Device.B".
std::string objectNames(const Request &request);

// Why a request was refused: the layer's own words, else what its code means.
std::string reasonOf(const Request &request);

// Whether the layer is the sandbox's: it alone explains its refusals.
bool isSandbox();

} // namespace pages
