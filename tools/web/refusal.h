// SPDX-License-Identifier: MIT
// Why a request was turned down by the server itself, before the gateway was asked.
#pragma once

#include "status.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace web {

struct Header {
    std::string name, value;
};

class Refusal : public std::runtime_error {
  public:
    // `headers` go with the answer beside those that every answer has.
    Refusal(Status status, const std::string &message, std::vector<Header> headers = {})
        : std::runtime_error(message), status_(status), headers_(std::move(headers)) {}

    [[nodiscard]] Status status() const { return status_; }
    [[nodiscard]] const std::vector<Header> &headers() const { return headers_; }

  private:
    Status status_;
    std::vector<Header> headers_;
};

} // namespace web
