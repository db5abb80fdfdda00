// SPDX-License-Identifier: MIT
#include "wifi_support.h"

#include <unistd.h>

namespace {
unsigned slept = 0;
} // namespace

// The library sleeps through this one.
extern "C" unsigned sleep(unsigned seconds) {
    slept += seconds;
    return 0;
}

using namespace test;

namespace {

class Mesh : public WifiTest {
  protected:
    void SetUp() override {
        WifiTest::SetUp();
        slept = 0;
    }
};

constexpr char kMesh[] = "Device.WiFi.X_ZINTU_RoamingMesh.";
constexpr char kMode[] = "Device.X_ZINTU_CurrentNetwork";

std::string mesh(int line, const std::string &function, const std::string &text) {
    return vola("ZintuMeshGrove", line, function) + text;
}

TEST_F(Mesh, Switch) {
    expectEach("true=1&TRUE=1&1=1&yes=0&=0&10=0", [](const std::string &value) {
        platform().on(kMesh, {object(kMesh, {"Other=0"}), object(kMesh, {"Enable=" + value, "Enable=x"}),
                              object(kMesh, {"Enable=1"})});
        return std::to_string(ZINTU_meshgrove_check_is_enabled());
    });
    platform().on(kMesh, Reply{});
    EXPECT_EQ(0, ZINTU_meshgrove_check_is_enabled()); // absent
    EXPECT_EQ(std::string("getValue 1/0x1004/2 ") + kMesh + "(Enable)", platform().callTexts().back());
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(0, ZINTU_meshgrove_check_is_enabled());
    EXPECT_TRUE(takeConsole().ends_with(
        "\n\n\t[ZINTU_meshgrove_check_is_enabled : 193] faltocal_send_main_multi_obj function failed with object [" +
        std::string(kMesh) + "] param [Enable] \n" +
        mesh(210, "ZINTU_meshgrove_check_is_enabled", "[ERROR] Return [false] \n")));
    for (const auto &[enable, word] : {std::pair<uint8_t, const char *>{0, "false"}, {1, "true"}, {255, "true"}}) {
        platform().on(kMesh, Reply{});
        EXPECT_EQ(0, ZINTU_meshgrove_set_enable_value(enable));
        EXPECT_EQ("setValue 2/0x4/2 " + std::string(kMesh) + "(Enable=" + word + ")", platform().callTexts().back());
        EXPECT_EQ(mesh(296, "ZINTU_meshgrove_set_enable_value",
                       "START_FUNCTION : FAL with arg [" + std::to_string(enable) + "] \n"),
                  takeConsole());
    }
    EXPECT_EQ(-1, ZINTU_meshgrove_set_enable_value(1));
    EXPECT_TRUE(takeConsole().ends_with(
        "\n\n\t[ZINTU_meshgrove_set_enable_value : 301] faltocal_send_main_multi_obj is Failure\n"));
}

TEST_F(Mesh, FirstLineOfRealCommands) {
    char output[128];
    shell().real = true;
    expectEach("printf 'x\\ny\\n'=x&echo 'abc  '=abc  &echo=&head -c 500 /dev/zero | tr '\\0' y=" +
                   std::string(127, 'y'),
               [&](const std::string &command) { return get_from_shell(command.c_str(), output); });
    EXPECT_EQ("", takeConsole());
}

// One of the two ways to read a command's first line, and what it prints and leaves in the output.
struct Reader {
    char *(*get)(const char *, char *);
    std::string function, prefix;
    int noCommand, notStarted, noOutput, last;
    size_t cleared;
};

TEST_F(Mesh, FirstLineFailures) {
    for (const Reader &reader :
         {Reader{get_from_shell, "get_from_shell", "[ERROR] ", 95, 102, 110, 134, 128},
          Reader{ZINTU_meshgrove_get_from_shell, "ZINTU_meshgrove_get_from_shell", "", 228, 235, 249, 272, 1}}) {
        const auto expect = [&](const char *command, int line, const std::string &text) {
            char output[128];
            memset(output, 'x', sizeof(output));
            EXPECT_EQ(output, reader.get(command, output));
            EXPECT_EQ(std::string(reader.cleared, '\0') + std::string(128 - reader.cleared, 'x'),
                      std::string(output, 128));
            EXPECT_EQ(mesh(line, reader.function, reader.prefix + text) +
                          mesh(reader.last, reader.function,
                               reader.prefix + "Received CMD [" + (command ? command : "(null)") + "] returns [] \n"),
                      takeConsole());
        };
        const auto noCommand = [&](const std::string &command) {
            return reader.cleared == 1 ? "Received arg CMD is NULL \n"
                                       : "Received arg CMD [" + command + "] or return buffer is NULL \n";
        };
        resetShell();
        expect("", reader.noCommand, noCommand(""));
        expect(nullptr, reader.noCommand, noCommand("(null)"));
        expect("silent", reader.noOutput, "fgets function failed. \n");
        shell().failPopen = true;
        expect("c", reader.notStarted, "popen failed with [c] \n");
    }
    EXPECT_EQ(nullptr, get_from_shell("c", nullptr));
    EXPECT_TRUE(takeConsole().starts_with(
        mesh(95, "get_from_shell", "[ERROR] Received arg CMD [c] or return buffer is NULL \n")));
}

TEST_F(Mesh, CommandsForTheirEffect) {
    const std::string function = "ZINTU_meshgrove_get_from_shell";
    char output[128] = "";
    shell().onPopen = [](const std::string &) { return "abc  \nnext"; };
    EXPECT_EQ(output, ZINTU_meshgrove_get_from_shell("c", output));
    EXPECT_STREQ("abc  ", output);
    EXPECT_EQ(mesh(272, function, "Received CMD [c] returns [abc  ] \n"), takeConsole());
    EXPECT_EQ(nullptr, ZINTU_meshgrove_get_from_shell("c", nullptr));
    EXPECT_EQ(mesh(243, function, "Received return buffer is NULL. Skip get return value. \n") +
                  mesh(272, function, "Received CMD [c] returns [(null)] \n"),
              takeConsole());
    EXPECT_EQ(2U, shell().commands.size()); // run all the same
    shell().onPopen = [](const std::string &) { return "192.168.1.7\n"; };
    char mac[128] = "00:11:22:33:44:55";
    EXPECT_EQ(mac, ZINTU_meshgrove_get_IP_from_MAC(mac));
    EXPECT_STREQ("192.168.1.7", mac);
    EXPECT_EQ("/opt/meshgrove/scripts/find_mac_to_ip.sh 00:11:22:33:44:55", shell().commands.back());
}

TEST_F(Mesh, Sync) {
    const std::string count = "gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave";
    const std::string sync = count + "&gddbc -i -s /runtime/nimbord/sysnotifycmd \"\" ; killall -SIGUSR1 nimbord";
    struct Row {
        const char *enabled, *mode; // mode: null when it cannot be asked
        std::string count, commands;
        int line;
        const char *traced;
    };
    const char *none = "The connected slave is NOT exist. Skip waiting for SSO. \n";
    for (const Row &row :
         {Row{"false", "4", "1\n", "", 155, "The Meshgrove is NOT enabled. Skip waiting for SSO. \n"},
          Row{"true", "3", "1\n", "", 162, "The operation mode is NOT Master. Skip waiting for SSO. \n"},
          Row{"true", "4", "0\n", count, 168, none}, Row{"true", "12", "", count, 168, none},
          Row{"true", "6", "2\n", sync, 0, ""},
          Row{"true", nullptr, "1\n", sync, 0, ""}}) { // unknown passes for a master
        resetShell();
        resetPlatform();
        slept = 0;
        platform().on(kMesh, {object(kMesh, {std::string("Enable=") + row.enabled})});
        if (row.mode) {
            platform().on(kMode, {object(kMode, {std::string("OperationMode=") + row.mode})});
        }
        shell().onPopen = [&](const std::string &) { return row.count; };
        EXPECT_EQ(0, ZINTU_meshgrove_sync_to_slave());
        EXPECT_EQ(parts(row.commands), shell().commands);
        EXPECT_EQ(shell().commands.size() == 2 ? 5U : 0U, slept);
        const std::string traced = takeConsole();
        EXPECT_TRUE(!*row.traced || traced.ends_with(mesh(row.line, "ZINTU_meshgrove_sync_to_slave", row.traced)))
            << traced;
    }
}

} // namespace
