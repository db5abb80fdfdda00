// SPDX-License-Identifier: MIT
// A scripted platform: libcal and libhelper in the test's own process. It records every message handed over, answers
// from a script, counts nodes and checks that the lock is held.
#pragma once

#include "caltofal.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace test {

struct Param {
    std::string name;
    std::optional<std::string> value; // none: asked for
    bool operator==(const Param &) const = default;
};

struct Object {
    std::string name;
    std::vector<Param> params;
    uint32_t subOper = 0;
    bool operator==(const Object &) const = default;
};

// "name", or "name=value" for each parameter.
Object object(const std::string &name, const std::vector<std::string> &params = {}, uint32_t subOper = 0);

// One message as it reached the layer.
struct Call {
    std::string function; // "cal_getValue", ...
    uint32_t mainOper, listFlags, owner, initialised, reserved;
    std::vector<Object> objects;
};

// "getValue 1/0x4/32 Device.A(B,C=d) Device.E": function, main operation/flags/owner, objects with their parameters.
std::string text(const Call &call);

struct Reply {
    int code = 0;
    std::vector<Object> objects = {};
};

// The platform of the running test.
class Platform {
  public:
    // Queues a reply for a message whose last object has this name. Without one the code is -202.
    void on(const std::string &object, Reply reply) { replies_[object].push_back(std::move(reply)); }
    void on(const std::string &object, std::vector<Object> objects) { on(object, Reply{0, std::move(objects)}); }
    // What every message without a queued reply gets.
    void otherwise(Reply reply) {
        otherwiseAsk([reply = std::move(reply)] { return reply; });
    }
    void otherwiseAsk(std::function<Reply()> source) { otherwise_ = std::move(source); }

    // The n-th next allocation that the library asks for (1: the next) fails, the n-th next node of an answer, and the
    // n-th next message.
    void failAllocation(int n) { requested_.failing = n; }
    void failNode(int n) { answered_.failing = n; }
    void failSend(int n, int code) {
        failSend_ = n;
        sendCode_ = code;
    }

    [[nodiscard]] const std::vector<Call> &calls() const { return calls_; }
    [[nodiscard]] std::vector<std::string> callTexts() const;
    [[nodiscard]] int allocations() const { return requested_.made; }
    [[nodiscard]] int answeredNodes() const { return answered_.made; }
    [[nodiscard]] int releases() const { return releases_; }
    // Nodes allocated and not yet released, list heads included.
    [[nodiscard]] size_t nodes() const { return live_.size(); }

    Platform() = default;
    ~Platform(); // releases what is left
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;

    // List heads among them: messages that were not released.
    [[nodiscard]] size_t heads() const { return heads_.size(); }

    // For the platform functions themselves.
    enum class For { Library, Answer };
    void *allocate(size_t size, For whom);
    void *allocateHead(size_t size);
    void deallocate(void *node);
    int answer(const char *function, MsgHeader *message);
    int release(MsgHeader *message, int what);

  private:
    std::map<std::string, std::deque<Reply>> replies_;
    std::function<Reply()> otherwise_ = [] { return Reply{CALTOFAL_ABSENT_OBJECT}; };
    std::vector<Call> calls_;
    struct Allocations {
        int made = 0, failing = 0;
    };
    Allocations requested_, answered_;
    int failSend_ = 0, sendCode_ = 0, releases_ = 0;
    std::unordered_set<void *> live_, heads_;
    std::mutex mutex_; // nodes are made and released outside the layer's lock
};

Platform &platform();
// Starts the running test over with a fresh platform.
void resetPlatform();

// Everything written to "/dev/console" since the last call, and the syslog lines as "priority text".
std::string takeConsole();
// How many lines these were: the console is opened for each.
size_t takeConsoleLines();
std::vector<std::string> takeSyslog();

// The location tags as the library prints them.
std::string vola(const std::string &unit, int line, const std::string &function);
// A console text with the line numbers of its tags replaced by 0: for lines that are not fixed.
std::string withoutLines(const std::string &console);

// A fresh platform and console for each test; at its end every node is released and the lock is free.
class LibraryTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    // For the messages that the library leaves on purpose.
    void leaveNodes() { checkNodes_ = false; }

  private:
    bool checkNodes_ = true;
};

} // namespace test
