// SPDX-License-Identifier: MIT
//
// Messages (caltofal.h) taken apart into requests, and the answer put back into them.
#pragma once

#include "caltofal.h"
#include "store/reader.h"
#include "store/writer.h"

namespace sandbox {

// Throw a Refusal when the message is malformed.
std::vector<GetRequest> getRequests(const MsgHeader *message);
std::vector<SetRequest> setRequests(const MsgHeader *message);

// Makes the instances' paths the names of the objects that added them.
void nameAdded(const MsgHeader &message, const std::vector<SetRequest> &requests);

// The answer to a get, built beside the message that asks.
class Answer {
  public:
    // Throws std::bad_alloc, as does add().
    Answer();
    Answer(const Answer &) = delete;
    Answer &operator=(const Answer &) = delete;
    ~Answer();

    // The parameters that follow answer another of the message's objects.
    void nextRequest() { last_ = nullptr; }

    // Adds a parameter to the last object, or to a new one when that has another key.
    void add(std::string_view objectKey, std::string_view name, std::string_view value);

    // Puts the answer in the place of the message's objects.
    void replace(MsgHeader &message) const;

  private:
    MsgHeader header_{};
    ObjectNode *last_ = nullptr;
    std::string lastKey_;
};

} // namespace sandbox
