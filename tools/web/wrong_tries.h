// SPDX-License-Identifier: MIT
// Makes those wait who guess tokens.
#pragma once

#include <chrono>
#include <map>
#include <mutex>
#include <string>

namespace web {

// Safe for many threads.
class WrongTries {
  public:
    static constexpr int kFree = 5; // wrong tries without a wait
    static constexpr std::chrono::seconds kWait{10};

    // Whether an address has to wait: no try of it is looked at until then, be it right.
    bool mustWait(const std::string &address);

    void noteWrong(const std::string &address);
    void noteRight(const std::string &address);

  private:
    struct Count {
        int wrong = 0;
        std::chrono::steady_clock::time_point last;
    };
    void forgetOld();

    std::mutex mutex_;
    std::map<std::string, Count> counts_;
};

} // namespace web
