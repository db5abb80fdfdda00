// SPDX-License-Identifier: MIT
// Calling a page function of the library, and telling which of its requests made it fail.
#pragma once

#include "pages/failure.h"
#include "pages/layer/request_log.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace pages {

struct Expectation {
    // What to say when every request was answered and the function failed all the same: the gateway lacks something.
    std::string absent;
    // Beginnings of the objects on which the result hangs, where the function also asks for others in silence.
    std::initializer_list<std::string_view> decisive = {};
    // A failure code that is an answer for this page, 0 for none.
    int tolerated = 0;
};

// The failed requests behind calls of its thread that answered all the same, while it lives: what they ask for is
// missing on the pages. Objects and parameters that a gateway does not have are not among them.
class HiddenFailures {
  public:
    HiddenFailures();
    HiddenFailures(const HiddenFailures &) = delete;
    HiddenFailures &operator=(const HiddenFailures &) = delete;
    ~HiddenFailures();

    // A line each for people.
    [[nodiscard]] const std::vector<std::string> &notes() const { return notes_; }

    // To the innermost of this thread.
    static void note(const std::string &line);

  private:
    HiddenFailures *outer_;
    std::vector<std::string> notes_;
};

// A refused request as the reason why a page cannot be shown.
Failure failureOf(const Request &request);

// What `call` answers; throws a Failure when it is negative and not tolerated, or when
// no request was answered, for another reason than that the gateway lacks something.
int ask(const std::function<int()> &call, const Expectation &expectation);

// For a function that hides a failed request behind what it found until then: a call that answers -1 where one of its
// requests failed.
std::function<int()> strictly(const std::function<int()> &call);

// What such a call answers; throws as ask() does.
int askEvery(const std::function<int()> &call);

} // namespace pages
