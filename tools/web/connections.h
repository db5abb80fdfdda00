// SPDX-License-Identifier: MIT
// The connections that are open: how many there may be, and for how long each may keep the server waiting.
#pragma once

#include "refusal.h"

#include <chrono>
#include <condition_variable>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace web {

struct Limits {
    unsigned connections = 64;
    unsigned perAddress = 16;
};

// Safe for many threads. A thread of its own ends the connections that are too slow; it sleeps while there are none.
class Connections {
  public:
    // For a whole request to come, from the beginning of the connection or from the answer before. The HTTP library
    // tells of a request only when its first line is there: a time from its first byte on could not be kept.
    static constexpr std::chrono::seconds kRequestTime{10};
    static constexpr std::chrono::seconds kAnswerTime{60}; // to take the answer

    enum class State { Idle, Receiving, Working, Answering, Refused };

    struct Entry {
        int descriptor = -1;
        std::string address;
        State state = State::Idle;
        bool fresh = true; // no request has come yet
        std::chrono::steady_clock::time_point deadline;
    };
    using Handle = std::list<Entry>::iterator;

    // `common` are the headers of every answer, which outlive the object.
    Connections(Limits limits, const std::vector<Header> &common);
    Connections(const Connections &) = delete;
    Connections &operator=(const Connections &) = delete;
    ~Connections();

    // A connection is there. One too many is told so at once and is to be given no answer any more.
    Handle opened(int descriptor, std::string address);
    void closed(Handle entry);

    void become(Handle entry, State state);
    // Tells it why and has it closed; it is to be given no other answer.
    void refuse(Handle entry, const Refusal &refusal);
    bool isRefused(Handle entry);

    // Has those that are idle closed, the others when they have their answers; waits for that, at most until then.
    void drain(std::chrono::steady_clock::time_point deadline);

  private:
    void watch();
    // All with the mutex held.
    void dismiss(Entry &entry, const Refusal &refusal) const;
    void giveUp(const Entry &entry);
    void wakeBefore(std::chrono::steady_clock::time_point deadline);
    std::chrono::steady_clock::time_point expireAll(std::chrono::steady_clock::time_point now);

    const Limits limits_;
    const std::vector<Header> &common_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::list<Entry> entries_;
    std::map<std::string, unsigned> perAddress_; // of those that are not refused
    unsigned served_ = 0;
    bool ending_ = false;
    std::chrono::steady_clock::time_point wake_; // when the watcher looks again
    std::thread watcher_;
};

} // namespace web
