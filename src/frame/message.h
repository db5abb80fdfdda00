// SPDX-License-Identifier: MIT
// One request message on the stack of a getter.
#pragma once

#include "caltofal.h"
#include "libhelper.h"

namespace frame {

// A zeroed header that releases its lists at the end of its scope.
class Message {
  public:
    // What happens at the end of the scope to a message whose list was never allocated.
    enum class Empty : uint8_t { Release, Skip };

    explicit Message(Empty empty = Empty::Release) : empty_(empty) {}
    ~Message() { release(); }
    Message(const Message &) = delete;
    Message &operator=(const Message &) = delete;

    MsgHeader *header() { return &header_; }
    operator MsgHeader *() { return &header_; } // NOLINT(google-explicit-constructor): stands for its header
    [[nodiscard]] const MsgHeader &operator*() const { return header_; }

    // Releases the lists and starts again from a zeroed header; the platform is not relied on to zero it.
    void reset() {
        release();
        header_ = {};
    }

    // Gives the lists up without releasing them.
    void leave() { left_ = true; }

  private:
    void release() {
        const bool skip = left_ || (empty_ == Empty::Skip && !header_.objectList);
        if (!skip) {
            help_delMsg(&header_, 1);
        }
    }

    MsgHeader header_ = {};
    Empty empty_;
    bool left_ = false;
};

} // namespace frame
