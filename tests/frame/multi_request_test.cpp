// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

constexpr char kVariadic[] = "faltocal_send_main_multi_obj";
constexpr char kArray[] = "faltocal_send_main_multi_obj_No_variable";

// Both request functions take the same steps; `Param` says whether the parameters come from an array.
class MultiRequest : public LibraryTest, public testing::WithParamInterface<bool> {
  protected:
    int ask(const std::string &object, const char *mainOper, const char *subOper, int count = 0) {
        const char *params[] = {"A", "b", "C", "d"};
        return GetParam() ? faltocal_send_main_multi_obj_No_variable(&header, const_cast<char *>(object.c_str()),
                                                                     mainOper, subOper, count, params)
                          : faltocal_send_main_multi_obj(&header, object.c_str(), mainOper, subOper, count, params[0],
                                                         params[1], params[2], params[3]);
    }
    void TearDown() override {
        faltocal_finalize(&header);
        LibraryTest::TearDown();
    }
    [[nodiscard]] std::string tag(int variadicLine, int arrayLine) const {
        return vola("FaltoCal", GetParam() ? arrayLine : variadicLine, GetParam() ? kArray : kVariadic);
    }

    MsgHeader header = {};
};
INSTANTIATE_TEST_SUITE_P(Sources, MultiRequest, testing::Bool(),
                         [](const auto &row) { return row.param ? "Array" : "Variadic"; });

TEST_P(MultiRequest, KeywordsOfANewMessage) {
    platform().otherwise({});
    const std::pair<const char *, const char *> rows[] = {
        {"get", "getValue 1/0x1004/2 D.(A,b)"},
        {"get_def_val", "getValue 1/0x44/2 D.(A,b)"},
        {"get_leaf_node", "getValue 1/0x1100/2 D.(A,b)"},
        {"get_filter_by_param_value", "getValue 1/0x1100/2 D.(A=b,C=d)"},
        {"set", "setValue 2/0x4/2 D.(A=b,C=d)"},
        {"set_only_db", "setValue 2/0x4/2 D.(A=b,C=d)"}, // applied: it started the message
    };
    for (const auto &[word, call] : rows) {
        EXPECT_EQ(0, ask("D.", word, "set", 2)) << word;
        EXPECT_EQ(call, platform().callTexts().back());
        faltocal_finalize(&header);
    }
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(-1, ask("D.", "reboot", "act", 2));
    EXPECT_EQ(128U, header.mainOper);
    EXPECT_EQ(tag(830, 1050) + "Failure : faltocal_sendQuery() of D. \n", takeConsole());
    EXPECT_EQ(std::size(rows), platform().calls().size());
}

TEST_P(MultiRequest, QueuedObjectsLeaveTogether) {
    platform().otherwise({});
    EXPECT_EQ(0, ask("D.A.&", "set", "set", 1));
    EXPECT_EQ(0, ask("D.B&.", "nonsense", "add", 1)) << "the main keyword of a started message is not checked";
    EXPECT_TRUE(platform().calls().empty());
    EXPECT_EQ(0, ask("QuErY", "set_only_db", nullptr));
    EXPECT_EQ(0, ask("query", nullptr, nullptr));
    EXPECT_EQ(0, ask("D.C.", "set_only_db", "del"));
    EXPECT_EQ(
        (std::vector<std::string>{"setValueToDb 2/0x4/2 D.A.(A=b) D.B&(A=b)", "setValue 2/0x4/2 D.A.(A=b) D.B&(A=b)",
                                  "setValueToDb 2/0x4/2 D.A.(A=b) D.B&(A=b) D.C."}),
        platform().callTexts());
    EXPECT_EQ(1U, platform().calls()[0].objects[1].subOper);
}

TEST_P(MultiRequest, FilterModeHoldsForTheFirstCallOnly) {
    platform().otherwise({});
    EXPECT_EQ(0, ask("D.A.&", "get_filter_by_param_value", "get", 1));
    EXPECT_EQ(0, ask("D.B.", "get_filter_by_param_value", "get", 1));
    EXPECT_EQ(std::vector<std::string>{"getValue 1/0x1100/2 D.A.(A=b) D.B.(A)"}, platform().callTexts());
}

TEST_P(MultiRequest, PathsAreCut) {
    platform().otherwise({});
    EXPECT_EQ(0, ask(std::string(300, 'p'), "get", "get"));
    EXPECT_EQ(std::string(255, 'p'), platform().calls().back().objects[0].name);
    EXPECT_EQ(0, ask(std::string(300, 'q') + "&", "get", "get"));
    EXPECT_EQ(0, ask("query", "get", "get"));
    EXPECT_EQ(std::string(255, 'q'), platform().calls().back().objects[0].name);
}

TEST_P(MultiRequest, UnknownWords) {
    EXPECT_EQ(-1, ask("D.&", "GET", "get"));
    EXPECT_EQ(nullptr, header.objectList);
    EXPECT_EQ(tag(744, 950) + "Failure : Unknown args sMainOper = GET of D.& \n", takeConsole());
    EXPECT_EQ(-1, ask("D.%s", "get", "GET"));
    EXPECT_NE(nullptr, header.objectList);
    EXPECT_EQ(tag(775, 981) + "Failure : Unknown args sMainOper = GET of D.%s \n", takeConsole());
    EXPECT_TRUE(platform().calls().empty());
}

TEST_P(MultiRequest, QueryOfNothing) {
    EXPECT_EQ(-1, ask("Query", "get", "get"));
    EXPECT_EQ(GetParam() ? vola("FaltoCal", 1025, kArray) + "Failure : faltocal_sendQuery() of Query \n"
                         : vola("FaltoCal", 661, kVariadic) + "Failure : Received MsgHdr is NULL. can NOT do query.\n",
              takeConsole());
    EXPECT_TRUE(platform().calls().empty());
}

TEST_P(MultiRequest, FailedSend) {
    EXPECT_EQ(-1, ask("D.", "get", "get"));
    EXPECT_EQ(tag(830, 1050) + "Failure : faltocal_sendQuery() of D. \n", takeConsole());
    EXPECT_EQ(-1, ask("query", "get", "get"));
    EXPECT_EQ(tag(830, 1050) + "Failure : faltocal_sendQuery() of query \n", takeConsole());
}

using SendMultiObj = LibraryTest;

TEST_F(SendMultiObj, CallersFlagsAndOwner) {
    platform().otherwise({});
    MsgHeader header = {};
    EXPECT_EQ(0, faltocal_SendMultiObj(0, 0x44, 9, &header, "D.&", "get", "get", 2, "A", "B"));
    EXPECT_EQ(0, faltocal_SendMultiObj(0, 0x44, 9, &header, "QUERY", "nonsense", "get", 0));
    EXPECT_EQ(0, faltocal_SendMultiObj(0, 0x44, 9, &header, "query", nullptr, nullptr, 0));
    EXPECT_TRUE(platform().calls().empty());
    EXPECT_EQ(0, faltocal_SendMultiObj(1, 0, 0, &header, "query", nullptr, nullptr, 0));
    faltocal_finalize(&header);
    EXPECT_EQ(0, faltocal_SendMultiObj(1, 256, 2, &header, "D.", "get_filter_by_param_value", "get", 1, "A", "v"));
    faltocal_finalize(&header);
    EXPECT_EQ(0, faltocal_SendMultiObj(1, 4, 5, &header, "D.", "set", "set", 1, "A", "v"));
    faltocal_finalize(&header);
    EXPECT_EQ((std::vector<std::string>{"getValue 1/0x44/9 D.&(A,B) QUERY", "getValue 1/0x100/2 D.(A=v)",
                                        "setValue 2/0x4/5 D.(A=v)"}),
              platform().callTexts());
}

TEST_F(SendMultiObj, FailuresAreSilentAndKeepTheLayersCode) {
    MsgHeader header = {};
    platform().otherwise({-208, {}});
    EXPECT_EQ(-208, faltocal_SendMultiObj(1, 256, 2, &header, "D.", "get", "get", 0));
    EXPECT_EQ(-1, faltocal_SendMultiObj(1, 256, 2, &header, "D.", "get", "unknown", 0));
    faltocal_finalize(&header);
    EXPECT_EQ(-1, faltocal_SendMultiObj(1, 256, 2, &header, "D.", "get_leaf_node", "get", 0));
    EXPECT_EQ(-1, faltocal_SendMultiObj(1, 256, 2, &header, "D.", "reboot", "act", 1, "x"));
    faltocal_finalize(&header);
    EXPECT_EQ("", takeConsole());
}

} // namespace
