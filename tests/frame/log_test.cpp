// SPDX-License-Identifier: MIT
#include "platform.h"
#include "replaced.h"

#include <cstdarg>

using namespace test;

namespace {

using Log = LibraryTest;

// Makes the library log one error line and one critical line; both go where the settings say.
std::string logBoth() {
    testing::internal::CaptureStdout();
    ObjectNode *node = nullptr;
    faltocal_AddFilter(&node, nullptr, "");
    MsgHeader header = {};
    platform().failAllocation(1);
    EXPECT_EQ(0, faltocal_create_msg(&header, "get"));
    return testing::internal::GetCapturedStdout();
}

TEST_F(Log, SettingsGateBothRoads) {
    struct Row {
        uint16_t type, level;
        size_t syslogLines, stdoutLines;
    };
    const Row rows[] = {{1, 5, 2, 0}, {1, 3, 2, 0}, {1, 2, 1, 0}, {1, 1, 0, 0},
                        {2, 5, 0, 2}, {2, 2, 0, 1}, {3, 3, 2, 2}, {0, 5, 0, 0}};
    for (const Row &row : rows) {
        unfaltocalLogType = row.type;
        unfaltocalLogLevel = row.level;
        const std::string output = logBoth();
        EXPECT_EQ(row.syslogLines, takeSyslog().size()) << row.type << ' ' << row.level;
        EXPECT_EQ(row.stdoutLines, static_cast<size_t>(std::count(output.begin(), output.end(), '\n')));
    }
}

TEST_F(Log, ColouredLine) {
    unfaltocalLogType = 2;
    EXPECT_EQ("\x1b[38;5;214m<TIME> [ERROR] faltocal{faltocal_AddFilter, 139}:Either of Parameter Name  is mandatory\n"
              "\x1b[0m\x1b[31m<TIME> [CRITICAL] faltocal{HELP_CREATE_OBJ, 102}: malloc failed\n\x1b[0m",
              replaced(logBoth(), "[0-9]{2}-[0-9]{2}-[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}", "TIME"));
}

TEST_F(Log, ConsoleFormatsAsPrintfDoes) {
    EXPECT_EQ(0, PRINT_TO_CONSOLE("plain\n"));
    EXPECT_EQ(0, PRINT_TO_CONSOLE("%s=%d%s\n", "a", -7, ""));
    EXPECT_EQ(0, PRINT_TO_CONSOLE("%d %d\n", INT32_MIN, INT32_MAX));
    EXPECT_EQ(0, PRINT_TO_CONSOLE("%s 100%% %5.1f %x %.2s\n", "a", 2.5, 255U, "bcd"));
    const char *volatile none = nullptr;
    EXPECT_EQ(0, PRINT_TO_CONSOLE("%s\n", none));
    EXPECT_EQ("plain\na=-7\n-2147483648 2147483647\na 100%   2.5 ff bc\n(null)\n", takeConsole());
}

TEST_F(Log, ATagIsALineOfItsOwn) {
    takeConsoleLines();
    zintu_GetParamFromObjUnit(nullptr, "", nullptr);
    EXPECT_EQ(2U, takeConsoleLines());
    EXPECT_EQ(-1, ZINTU_meshgrove_set_enable_value(1)); // its start, the failed send, the failure
    EXPECT_EQ(6U, takeConsoleLines());
    EXPECT_EQ(-1, ZintuGet_OperMode());
    EXPECT_EQ(2U, takeConsoleLines());
}

TEST_F(Log, ConsoleLineIsCutTo1023Bytes) {
    for (const size_t length : {1022U, 1023U, 1024U, 5000U}) {
        const std::string text(length, 'x');
        PRINT_TO_CONSOLE("%s", text.c_str());
        EXPECT_EQ(text.substr(0, 1023), takeConsole());
        PRINT_TO_CONSOLE("%.6000s", text.c_str());
        EXPECT_EQ(text.substr(0, 1023), takeConsole());
        PRINT_TO_CONSOLE("%s%d%s", text.c_str(), 12345, "tail");
        EXPECT_EQ((text + "12345tail").substr(0, 1023), takeConsole());
    }
}

} // namespace
