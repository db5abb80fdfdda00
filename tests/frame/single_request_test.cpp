// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

using SingleRequest = LibraryTest;
using Send = int (*)(MsgHeader *, const char *, const char *, const char *, int, ...);

TEST_F(SingleRequest, KeywordsAndWhatIsDelivered) {
    struct Row {
        const char *mainOper, *subOper;
        int result;
        uint32_t main;    // 0: header untouched
        const char *call; // parameters of the delivered message behind its owner, or null: not delivered
    };
    const Row rows[] = {
        {"get", "get", 0, 1, " D.(A)"},
        {"get", "act", 0, 1, " D.(A)"},
        {"set", "set", 0, 2, " D.(A=b)"},
        {"set", "add", 0, 2, " D.(A=b)"},
        {"set", "del", 0, 2, " D.(A=b)"},
        {"set", "act", 0, 2, ""}, // refused object, delivered all the same
        {"set", "get", 0, 2, ""},
        {"factoryreset", "act", -1, 32, nullptr},
        {"backup", "act", -1, 64, nullptr},
        {"reboot", "act", -1, 128, nullptr},
        {"fwupgrade", "act", -1, 256, nullptr},
        {"get", "GET", -1, 1, nullptr},
        {"GET", "get", -1, 0, nullptr},
        {"get_leaf_node", "get", -1, 0, nullptr},
        {"", "get", -1, 0, nullptr},
    };
    const std::tuple<Send, int, std::string> senders[] = {{faltocal_send_main, 32, ""},
                                                          {faltocal_send_main_ToDb, 4, "ToDb"}};
    for (const auto &[send, owner, suffix] : senders) {
        for (const Row &row : rows) {
            SetUp();
            platform().otherwise({});
            MsgHeader header = {};
            EXPECT_EQ(row.result, send(&header, "D.", row.mainOper, row.subOper, 1, "A", "b"))
                << row.mainOper << ' ' << row.subOper;
            EXPECT_EQ(row.main, header.mainOper);
            if (row.main == 0) {
                EXPECT_EQ(nullptr, header.objectList);
            } else {
                EXPECT_EQ(static_cast<uint32_t>(owner), header.owner);
            }
            std::vector<std::string> calls;
            if (row.call) {
                const std::string function = row.main == 1 ? "getValue 1" : "setValue" + suffix + " 2";
                calls = {function + "/0x4/" + std::to_string(owner) + row.call};
            }
            EXPECT_EQ(calls, platform().callTexts());
            faltocal_finalize(&header);
        }
    }
}

TEST_F(SingleRequest, ParametersInOrder) {
    platform().otherwise({});
    MsgHeader header = {};
    EXPECT_EQ(0, faltocal_send_main(&header, "D.", "set", "set", 2, "A", "1", "B", "2"));
    faltocal_finalize(&header);
    EXPECT_EQ(0, faltocal_send_main(&header, "D.", "get", "get", 3, "A", "B", "C"));
    faltocal_finalize(&header);
    EXPECT_EQ((std::vector<std::string>{"setValue 2/0x4/32 D.(A=1,B=2)", "getValue 1/0x4/32 D.(A,B,C)"}),
              platform().callTexts());
}

TEST_F(SingleRequest, FailureOfTheLayer) {
    platform().otherwise({-202, {}});
    MsgHeader header = {};
    for (const auto &[word, line] : {std::pair{"get", "\n Get test failure\n"}, {"set", "\n Set test failure\n"}}) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(-1, faltocal_send_main(&header, "D.", word, "set", 0));
        EXPECT_EQ(line, testing::internal::GetCapturedStderr());
        testing::internal::CaptureStderr();
        EXPECT_EQ(-202, faltocal_sendQuery(&header)) << "the sender passes the code on";
        EXPECT_EQ(-202, faltocal_sendQuery_ToDb(&header));
        EXPECT_EQ(std::string(line) + line, testing::internal::GetCapturedStderr());
        faltocal_finalize(&header);
    }
    header.mainOper = 128;
    EXPECT_EQ(-1, faltocal_sendQuery(&header));
    EXPECT_EQ("", takeConsole());
}

} // namespace
