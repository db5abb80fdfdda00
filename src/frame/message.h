// SPDX-License-Identifier: MIT
// One request message on the stack of a getter.
#pragma once

#include "caltofal.h"
#include "libhelper.h"

namespace frame {

// A zeroed header that releases its lists at the end of its scope.
class Message {
  public:
    Message() = default;
    ~Message() { release(); }
    Message(const Message &) = delete;
    Message &operator=(const Message &) = delete;

    MsgHeader *header() { return &header_; }
    operator MsgHeader *() { return &header_; } // NOLINT(google-explicit-constructor): stands for its header
    [[nodiscard]] const MsgHeader &operator*() const { return header_; }

    // Releases the lists and starts again from a zeroed header, whether or not the platform zeroes it.
    void reset() {
        release();
        header_ = {};
    }

    // Leaves the lists unreleased.
    void leave() { left_ = true; }

  private:
    void release() {
        if (!left_) {
            help_delMsg(&header_, 1);
        }
    }

    MsgHeader header_ = {};
    bool left_ = false;
};

} // namespace frame
