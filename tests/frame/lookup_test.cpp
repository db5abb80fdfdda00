// SPDX-License-Identifier: MIT
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/range.h"
#include "platform.h"

using namespace test;

namespace {

class Lookup : public LibraryTest {
  protected:
    // Sends a get whose answer is `objects`.
    void answer(std::vector<Object> objects) {
        platform().on("D.", std::move(objects));
        message.reset();
        ASSERT_EQ(0, faltocal_send_main(message, "D.", "get", "get", 0));
    }
    ObjectNode &first() { return *frame::objects(*message).begin(); }

    frame::Message message;
    void TearDown() override {
        message.reset();
        LibraryTest::TearDown();
    }
};

TEST_F(Lookup, ParamValueGetTriesLaterObjects) {
    const std::string longName(128, 'n');
    answer({object("D.Other", {"A=no"}), object("D.Host.1", {"B=1"}), object("D.Host.2", {"A=yes", "A=late"}),
            object("D.Long", {longName + "x=long", "Text=" + std::string(200, 't')})});
    char buffer[130];
    char *out = buffer;
    struct Row {
        std::string part, name, value; // "-": not found
    };
    const Row rows[] = {{"Host", "A", "yes"},
                        {"host", "A", "-"},
                        {"", "A", "no"},
                        {"Host", "C", "-"},
                        {"Long", longName + "y", "long"}, // equal over 128 characters
                        {"Long", longName.substr(1), "-"},
                        {"Long", "Text", std::string(127, 't')}};
    for (const Row &row : rows) {
        memset(buffer, '#', sizeof(buffer));
        const int result = caltofal_paramValue_get((*message).objectList, row.part.c_str(), row.name.c_str(), &out);
        EXPECT_EQ(row.value == "-" ? -1 : 0, result) << row.part << ' ' << row.name;
        if (result == 0) {
            EXPECT_EQ(row.value, out);
            EXPECT_EQ('#', buffer[128]);
        } else {
            EXPECT_EQ('#', buffer[0]);
        }
    }
    EXPECT_EQ("", takeConsole());
}

TEST_F(Lookup, GetParamFromObjUnit) {
    answer({object("D.", {"Aa=one", "A=first", "A=second", "Empty="})});
    const char *value = "untouched";
    EXPECT_EQ(0, zintu_GetParamFromObjUnit(&first(), "A", &value));
    EXPECT_STREQ("first", value);
    EXPECT_EQ(0, zintu_GetParamFromObjUnit(&first(), "Empty", &value));
    EXPECT_STREQ("", value);
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(-1, zintu_GetParamFromObjUnit(&first(), "AA", &value));
    EXPECT_EQ(vola("FaltoCal", 1357, "zintu_GetParamFromObjUnit") + "Can't find Param(AA) in Obj\n", takeConsole());
    EXPECT_EQ(-1, zintu_GetParamFromObjUnit(nullptr, "A", &value));
    EXPECT_EQ(-1, zintu_GetParamFromObjUnit(&first(), nullptr, &value));
    EXPECT_EQ(-1, zintu_GetParamFromObjUnit(&first(), "", &value));
    EXPECT_EQ(-1, zintu_GetParamFromObjUnit(&first(), "A", nullptr));
    const std::string invalid = vola("FaltoCal", 1347, "zintu_GetParamFromObjUnit") + "invalid parameter\n";
    EXPECT_EQ(invalid + invalid + invalid + invalid, takeConsole());
    EXPECT_STREQ("", value);
}

TEST_F(Lookup, ManyAtOnceAnswersAndTracesAsOneByOne) {
    answer({object("D.", {"B=b", "X=x", "A=a", "A=again"})});
    const char *const names[] = {"A", "Gone", "B", "Lost"};
    const char *values[4];
    frame::findOrTrace(first(), names, values);
    const std::string atOnce = takeConsole();
    for (size_t i = 0; i < std::size(names); ++i) {
        const char *single = nullptr;
        zintu_GetParamFromObjUnit(&first(), names[i], &single);
        EXPECT_EQ(single, values[i]) << names[i];
    }
    EXPECT_EQ(takeConsole(), atOnce);
}

} // namespace
