// SPDX-License-Identifier: MIT
//
// A private sandbox for each test, and messages written in one line.
#pragma once

#include "libcal.h"
#include "libhelper.h"
#include "store/database.h"
#include "store/location.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<std::string, std::string>>;

constexpr uint32_t kPlainGet = 0x1004;
constexpr uint32_t kLeafGet = 0x1100;
constexpr uint32_t kDefaultGet = 0x44;
constexpr uint32_t kFilterGet = CALTOFAL_LIST_LEAF;

// A message with its lists, built as the library builds it.
class Message {
  public:
    Message(uint32_t mainOper, uint32_t listFlags);
    Message(const Message &) = delete;
    ~Message();

    static std::unique_ptr<Message> get(uint32_t listFlags, const std::string &path, const Lines &names = {});
    static std::unique_ptr<Message> filter(const std::string &path, const Pairs &filters);
    static std::unique_ptr<Message> set();

    // `subOper`: 1 add, 2 delete, 4 set; 0 on a get.
    Message &object(const std::string &path, uint32_t subOper = 0);
    Message &param(const std::string &name, const char *value);

    Message &with(const std::string &path, uint32_t subOper, const Pairs &values);

    // "OBJECT.NAME=VALUE" for each parameter, in order; an object without parameters as "OBJECT".
    Lines lines() const;

    MsgHeader header{};

  private:
    ObjectNode *object_ = nullptr;
};

constexpr uint32_t kAdd = CALTOFAL_SUBOPER_ADD;
constexpr uint32_t kDelete = CALTOFAL_SUBOPER_DELETE;
constexpr uint32_t kSet = CALTOFAL_SUBOPER_SET;

// One object set through cal_setValue; its code.
int setOne(const std::string &path, const Pairs &values);

// The value of one parameter; "?" and the code when there is none.
std::string valueOf(const std::string &path, const std::string &name);

// A temporary directory, chosen by the environment, with the gateway "lab" in it.
class SandboxTest : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    static sandbox::Location location(const std::string &name = "lab") { return sandbox::Location::named(name); }
    // All that the gateway exports.
    static Lines exported(const std::string &name = "lab");
    static std::string readFile(const std::string &file);

    std::string directory;
};
