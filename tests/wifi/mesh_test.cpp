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

TEST_F(Mesh, IsEnabled) {
    for (const auto &[value, enabled] : {std::pair{"true", 1}, {"TRUE", 1}, {"1", 1}, {"yes", 0}, {"", 0}, {"10", 0}}) {
        platform().on(kMesh, {object(kMesh, {"Other=0"}), object(kMesh, {std::string("Enable=") + value, "Enable=x"})});
        EXPECT_EQ(enabled, ZINTU_meshgrove_check_is_enabled()) << value;
    }
    platform().on(kMesh, Reply{});
    EXPECT_EQ(0, ZINTU_meshgrove_check_is_enabled()); // absent
    EXPECT_EQ(std::string("getValue 1/0x1004/2 ") + kMesh + "(Enable)", platform().callTexts().back());
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(0, ZINTU_meshgrove_check_is_enabled());
    EXPECT_TRUE(takeConsole().ends_with(
        "\n\n\t[ZINTU_meshgrove_check_is_enabled : 193] faltocal_send_main_multi_obj function failed with object [" +
        std::string(kMesh) + "] param [Enable] \n" +
        mesh(210, "ZINTU_meshgrove_check_is_enabled", "[ERROR] Return [false] \n")));
}

TEST_F(Mesh, SetEnable) {
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

struct ShellFailure {
    const char *command;
    bool start; // whether it can be started
    int line;
    std::string text;
};

constexpr auto kSilent = [](const std::string &command) { return command == "silent" ? "" : "abc  \nnext"; };

TEST_F(Mesh, GetFromShell) {
    const std::string function = "get_from_shell";
    char output[128];
    shell().real = true;
    for (const auto &[command, line] : {std::pair{"printf 'x\\ny\\n'", "x"}, {"echo 'abc  '", "abc  "}, {"echo", ""}}) {
        EXPECT_EQ(output, get_from_shell(command, output));
        EXPECT_STREQ(line, output) << command;
    }
    get_from_shell("head -c 500 /dev/zero | tr '\\0' y", output);
    EXPECT_EQ(std::string(127, 'y'), output);
    EXPECT_EQ("", takeConsole());

    shell().real = false;
    shell().onPopen = kSilent;
    const std::string invalid = "] or return buffer is NULL \n";
    for (const ShellFailure &row : {ShellFailure{"silent", true, 110, "fgets function failed. \n"},
                                    ShellFailure{"", true, 95, "Received arg CMD [" + invalid},
                                    ShellFailure{nullptr, true, 95, "Received arg CMD [(null)" + invalid},
                                    ShellFailure{"c", false, 102, "popen failed with [c] \n"}}) {
        memset(output, 'x', sizeof(output));
        shell().failPopen = !row.start;
        get_from_shell(row.command, output);
        EXPECT_EQ(std::string(sizeof(output), '\0'), std::string(output, sizeof(output)));
        EXPECT_EQ(mesh(row.line, function, "[ERROR] " + row.text) +
                      mesh(134, function,
                           std::string("[ERROR] Received CMD [") + (row.command ? row.command : "(null)") +
                               "] returns [] \n"),
                  takeConsole());
    }
    EXPECT_EQ(nullptr, get_from_shell("c", nullptr));
    EXPECT_TRUE(takeConsole().starts_with(mesh(95, function, "[ERROR] Received arg CMD [c" + invalid)));
}

TEST_F(Mesh, MeshGetFromShell) {
    const std::string function = "ZINTU_meshgrove_get_from_shell";
    const auto last = [&](const char *command, const std::string &output) {
        return mesh(272, function,
                    std::string("Received CMD [") + (command ? command : "(null)") + "] returns [" + output + "] \n");
    };
    char output[128] = "";
    shell().onPopen = kSilent;
    EXPECT_EQ(output, ZINTU_meshgrove_get_from_shell("c", output));
    EXPECT_STREQ("abc  ", output);
    EXPECT_EQ(last("c", "abc  "), takeConsole());
    EXPECT_EQ(nullptr, ZINTU_meshgrove_get_from_shell("c", nullptr));
    EXPECT_EQ(mesh(243, function, "Received return buffer is NULL. Skip get return value. \n") + last("c", "(null)"),
              takeConsole());
    EXPECT_EQ(2U, shell().commands.size()); // run all the same
    for (const ShellFailure &row : {ShellFailure{"", true, 228, "Received arg CMD is NULL \n"},
                                    ShellFailure{nullptr, true, 228, "Received arg CMD is NULL \n"},
                                    ShellFailure{"c", false, 235, "popen failed with [c] \n"},
                                    ShellFailure{"silent", true, 249, "fgets function failed. \n"}}) {
        strcpy(output, "before");
        shell().failPopen = !row.start;
        ZINTU_meshgrove_get_from_shell(row.command, output);
        EXPECT_EQ(0, memcmp("\0efore", output, 7)); // the first byte alone
        EXPECT_EQ(mesh(row.line, function, row.text) + last(row.command, ""), takeConsole());
    }
}

TEST_F(Mesh, AddressOfSatellite) {
    char mac[128] = "00:11:22:33:44:55";
    shell().onPopen = [](const std::string &) { return "192.168.1.7\n"; };
    EXPECT_EQ(mac, ZINTU_meshgrove_get_IP_from_MAC(mac));
    EXPECT_STREQ("192.168.1.7", mac);
    EXPECT_EQ("/opt/meshgrove/scripts/find_mac_to_ip.sh 00:11:22:33:44:55", shell().commands.back());
    shell().onPopen = nullptr;
    EXPECT_STREQ("", ZINTU_meshgrove_get_IP_from_MAC(mac));
}

TEST_F(Mesh, Sync) {
    constexpr char kCount[] = "gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave";
    constexpr char kSync[] = "gddbc -i -s /runtime/nimbord/sysnotifycmd \"\" ; killall -SIGUSR1 nimbord";
    struct Row {
        const char *enabled, *mode; // mode: null when it can not be asked
        std::string count;
        std::vector<std::string> commands;
        const char *traced;
    };
    const Row rows[] = {
        {"false", "4", "1\n", {}, "155, The Meshgrove is NOT enabled. Skip waiting for SSO. \n"},
        {"true", "3", "1\n", {}, "162, The operation mode is NOT Master. Skip waiting for SSO. \n"},
        {"true", "4", "0\n", {kCount}, "168, The connected slave is NOT exist. Skip waiting for SSO. \n"},
        {"true", "12", "", {kCount}, "168, The connected slave is NOT exist. Skip waiting for SSO. \n"},
        {"true", "6", "2\n", {kCount, kSync}, nullptr},
        {"true", nullptr, "1\n", {kCount, kSync}, nullptr}, // an unknown mode passes for a master
    };
    for (const Row &row : rows) {
        resetShell();
        slept = 0;
        platform().on(kMesh, {object(kMesh, {std::string("Enable=") + row.enabled})});
        if (row.mode && strcmp(row.enabled, "true") == 0) {
            platform().on(kMode, {object(kMode, {std::string("OperationMode=") + row.mode})});
        }
        shell().onPopen = [&](const std::string &) { return row.count; };
        EXPECT_EQ(0, ZINTU_meshgrove_sync_to_slave());
        EXPECT_EQ(row.commands, shell().commands);
        EXPECT_EQ(row.commands.size() == 2 ? 5U : 0U, slept);
        const std::string traced = takeConsole();
        if (row.traced) {
            const std::string text = row.traced;
            EXPECT_TRUE(traced.ends_with(mesh(std::stoi(text), "ZINTU_meshgrove_sync_to_slave", text.substr(5))))
                << traced;
        }
    }
}

} // namespace
