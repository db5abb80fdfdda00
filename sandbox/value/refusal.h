// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace sandbox {

// A message, or a command, that the store refuses: what() names the culprit in one line.
class Refusal : public std::runtime_error {
  public:
    Refusal(int code, const std::string &reason) : std::runtime_error(reason), code_(code) {}
    // CaltofalLayerCode.
    int code() const { return code_; }

  private:
    int code_;
};

} // namespace sandbox
