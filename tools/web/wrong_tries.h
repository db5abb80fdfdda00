// SPDX-License-Identifier: MIT
// Makes those wait who guess tokens.
#pragma once

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace web {

// Safe for many threads.
class WrongTries {
  public:
    static constexpr int kFree = 5; // wrong tries without a wait
    static constexpr std::chrono::seconds kWait{10};

    // Whether a try has to wait. The right token waits as well, so that a guess tells nothing, but once only, from its
    // first refusal on: who goes on guessing from the owner's address cannot keep the owner out.
    bool mustWait(const std::string &address, bool right);

    void noteWrong(const std::string &address);
    void noteRight(const std::string &address);

  private:
    struct Count {
        int wrong = 0;
        std::chrono::steady_clock::time_point last;
        std::optional<std::chrono::steady_clock::time_point> rightRefused; // for the first time
    };
    void forgetOld();

    std::mutex mutex_;
    std::map<std::string, Count> counts_;
};

} // namespace web
