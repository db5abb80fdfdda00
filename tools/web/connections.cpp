// SPDX-License-Identifier: MIT
#include "connections.h"

#include "response.h"

#include <algorithm>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace web {
namespace {

using std::chrono::steady_clock;

// To a connection that the server gives up; what does not go out at once is lost.
void sayGoodbye(int descriptor, const Refusal &refusal, const std::vector<Header> &common) {
    const std::string bytes = closingBytes(errorResponse(refusal), common);
    static_cast<void>(send(descriptor, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL));
}

// Whether something came that the server has not read yet.
bool hasBytes(int descriptor) {
    int count = 0;
    return ioctl(descriptor, FIONREAD, &count) == 0 && count > 0;
}

// A connection that was silent since its last answer is closed without a word: a client could take it for the answer
// to what it is about to ask. Where bytes wait to be read, the server is late and not the client.
void expire(Connections::Entry &entry, const std::vector<Header> &common) {
    using State = Connections::State;
    const bool isAwaited = entry.state == State::Receiving || entry.state == State::Idle;
    if (isAwaited && hasBytes(entry.descriptor)) {
        entry.deadline += std::chrono::seconds(1);
        return;
    }
    if (isAwaited && (entry.state == State::Receiving || entry.fresh)) {
        sayGoodbye(entry.descriptor,
                   Refusal(Status::RequestTimeout, "the request did not come whole within " +
                                                       std::to_string(Connections::kRequestTime.count()) + " seconds"),
                   common);
    }
    shutdown(entry.descriptor, SHUT_RDWR);
    entry.deadline = steady_clock::time_point::max();
}

} // namespace

Connections::Connections(Limits limits, const std::vector<Header> &common)
    : limits_(limits), common_(common), watcher_([this] { watch(); }) {}

Connections::~Connections() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    watcher_.join();
}

Connections::Handle Connections::opened(int descriptor, std::string address) {
    const std::lock_guard lock(mutex_);
    unsigned &ofAddress = perAddress_[address];
    const bool full = served_ >= limits_.connections;
    const bool refused = full || ofAddress >= limits_.perAddress;
    entries_.push_front({descriptor, std::move(address), State::Idle, true, steady_clock::now() + kRequestTime});
    const auto entry = entries_.begin();
    if (refused) {
        dismiss(*entry,
                Refusal(Status::Unavailable, full ? "too many connections" : "too many connections from this address",
                        {{"Retry-After", "1"}}));
    } else {
        ++ofAddress;
        ++served_;
    }
    wakeBefore(entry->deadline);
    return entry;
}

void Connections::closed(Handle entry) {
    const std::lock_guard lock(mutex_);
    if (entry->state != State::Refused) {
        giveUp(*entry);
    }
    entries_.erase(entry);
    if (ending_) {
        changed_.notify_all();
    }
}

void Connections::refuse(Handle entry, const Refusal &refusal) {
    const std::lock_guard lock(mutex_);
    if (entry->state != State::Refused) {
        giveUp(*entry);
        dismiss(*entry, refusal);
        wakeBefore(entry->deadline);
    }
}

void Connections::dismiss(Entry &entry, const Refusal &refusal) const {
    entry.state = State::Refused;
    entry.deadline = steady_clock::now() + std::chrono::seconds(1);
    sayGoodbye(entry.descriptor, refusal, common_);
    shutdown(entry.descriptor, SHUT_WR); // what the client still sends is read, so that it sees the answer
}

// Its place is free for another one.
void Connections::giveUp(const Entry &entry) {
    --served_;
    const auto ofAddress = perAddress_.find(entry.address);
    if (--ofAddress->second == 0) {
        perAddress_.erase(ofAddress);
    }
}

void Connections::become(Handle entry, State state) {
    const std::lock_guard lock(mutex_);
    if (entry->state == State::Refused) {
        return;
    }
    entry->state = state;
    entry->fresh = false;
    if (state == State::Working) {
        entry->deadline = steady_clock::time_point::max();
    } else if (state != State::Receiving) { // which has what is left of the time since it was idle
        entry->deadline = steady_clock::now() + (state == State::Answering ? kAnswerTime : kRequestTime);
    }
    wakeBefore(entry->deadline);
}

void Connections::wakeBefore(steady_clock::time_point deadline) {
    if (ending_ || deadline < wake_) {
        changed_.notify_all();
    }
}

bool Connections::isRefused(Handle entry) {
    const std::lock_guard lock(mutex_);
    return entry->state == State::Refused;
}

void Connections::drain(steady_clock::time_point deadline) {
    std::unique_lock lock(mutex_);
    ending_ = true;
    const auto allGone = [this] {
        for (Entry &entry : entries_) {
            const bool silent = entry.state == State::Idle && !hasBytes(entry.descriptor);
            if (silent || entry.state == State::Refused) {
                shutdown(entry.descriptor, SHUT_RD); // what is being read at this moment is still answered
            }
        }
        return entries_.empty();
    };
    changed_.wait_until(lock, deadline, allGone);
}

steady_clock::time_point Connections::expireAll(steady_clock::time_point now) {
    steady_clock::time_point next = steady_clock::time_point::max();
    for (Entry &entry : entries_) {
        if (entry.deadline <= now) {
            expire(entry, common_);
        }
        next = std::min(next, entry.deadline);
    }
    return next;
}

void Connections::watch() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        wake_ = expireAll(steady_clock::now());
        if (wake_ == steady_clock::time_point::max()) {
            changed_.wait(lock);
        } else {
            changed_.wait_until(lock, wake_);
        }
    }
}

} // namespace web
