// SPDX-License-Identifier: MIT
//
// Stores that cannot be used.
#include "cal/cal_sandbox.h"
#include "exchange/gateway.h"
#include "sandbox_fixture.h"
#include "store/cal_codes.h"
#include "store/store.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace sandbox;

namespace {

using Trouble = SandboxTest;

int getInfo() {
    return cal_getValue(&Message::get(kPlainGet, "Device.Info")->header);
}

// Runs `work` in a child; its result.
template <class Work>
int inChild(Work work) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(Codes, EachHasWordsOfItsOwn) {
    std::set<std::string_view> texts;
    for (const CodeName &row : kCodeNames) {
        const char *text = caltofal_layerCodeText(row.code);
        EXPECT_TRUE(text && texts.insert(text).second) << row.name;
    }
    EXPECT_EQ(nullptr, caltofal_layerCodeText(-1));
}

TEST_F(Trouble, WithoutAGateway) {
    const std::string outside = directory + "-outside";
    for (const std::string &name :
         {std::string("nosuch"), ".." + outside.substr(outside.rfind('/')), std::string("/")}) {
        setenv("CALTOFAL_GATEWAY", name.c_str(), 1);
        EXPECT_EQ(getInfo(), CALTOFAL_NO_GATEWAY) << name;
    }
    EXPECT_STREQ(cal_sandboxReason(),
                 "\"/\" is not a gateway name: it begins with a letter, a digit or '_', and goes on with "
                 "these, '.' and '-'");
    EXPECT_FALSE(std::filesystem::exists(location("nosuch").logFile()));
    EXPECT_FALSE(std::filesystem::exists(outside + ".log")) << "logged outside the sandbox";
    setenv("CALTOFAL_GATEWAY", "lab", 1);
    EXPECT_EQ(getInfo(), 0);
}

TEST_F(Trouble, WithAStoreThatIsNone) {
    std::ofstream(location("text").storeFile()) << std::string(5000, 'x');
    std::ofstream(location("empty").storeFile());
    std::filesystem::create_directory(location("folder").storeFile());
    for (const char *name : {"text", "empty", "folder"}) {
        setenv("CALTOFAL_GATEWAY", name, 1);
        EXPECT_EQ(getInfo(), CALTOFAL_STORE_FAILED) << name;
        EXPECT_STRNE(cal_sandboxReason(), "");
    }
}

TEST_F(Trouble, WithAStoreThatStaysLocked) {
    setenv("CALTOFAL_SANDBOX_BUSY_MS", "50", 1);
    {
        const auto database = openGateway(location());
        const Transaction writing(*database, Transaction::Kind::Write);
        EXPECT_EQ(setOne("Device.Pair", {{"Left", "1"}}), CALTOFAL_STORE_BUSY);
        EXPECT_EQ(getInfo(), 0) << "readers do not wait for a writer";
    }
    EXPECT_EQ(setOne("Device.Pair", {{"Left", "1"}}), 0);
    unsetenv("CALTOFAL_SANDBOX_BUSY_MS");
}

// A limit on the size of files stands for a full disk: writing fails, also for the user who may write anywhere.
TEST_F(Trouble, WithAFullDisk) {
    const int result = inChild([] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        if (setOne("Device.Pair", {{"Left", "1"}, {"Right", "1"}}) != CALTOFAL_STORE_FAILED) {
            return 1;
        }
        setenv("CALTOFAL_GATEWAY", "home", 1); // cannot be made
        return getInfo() == CALTOFAL_STORE_FAILED ? 0 : 2;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(valueOf("Device.Pair", "Left"), "0");
    EXPECT_FALSE(storeExists(location("home")));
    for (const auto &entry : std::filesystem::directory_iterator(directory)) {
        EXPECT_EQ(entry.path().string().find("draft"), std::string::npos) << entry.path();
    }
}

TEST_F(Trouble, WithADirectoryThatCanNotBeMade) {
    setenv("CALTOFAL_SANDBOX_DIR", (directory + "/lab.db/below").c_str(), 1);
    setenv("CALTOFAL_GATEWAY", "home", 1);
    EXPECT_EQ(getInfo(), CALTOFAL_STORE_FAILED);
}

TEST_F(Trouble, WhenAGatewayIsRemovedAndMadeAnewMeanwhile) {
    ASSERT_EQ(setOne("Device.Info", {{"Name", "old"}}), 0);
    ASSERT_TRUE(removeStore(location()));
    EXPECT_EQ(getInfo(), CALTOFAL_NO_GATEWAY);
    SetUp();
    EXPECT_EQ(valueOf("Device.Info", "Name"), "lab");
}

TEST_F(Trouble, ChoosesTheDirectoryByTheEnvironment) {
    struct Case {
        const char *own, *state, *home;
        std::string directory;
    };
    const Case cases[] = {
        {"/own", "/state", "/home/me", "/own"},
        {"", "/state", "/home/me", "/state/caltofal"},
        {nullptr, "relative", "/home/me", "/home/me/.local/state/caltofal"},
        {nullptr, nullptr, "", "/tmp/caltofal-" + std::to_string(getuid())},
    };
    const auto set = [](const char *name, const char *value) { value ? setenv(name, value, 1) : unsetenv(name); };
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    for (const Case &row : cases) {
        set("CALTOFAL_SANDBOX_DIR", row.own);
        set("XDG_STATE_HOME", row.state);
        set("HOME", row.home);
        EXPECT_EQ(Location::current().storeFile(), row.directory + "/lab.db");
    }
    set("HOME", home.c_str());
    unsetenv("CALTOFAL_GATEWAY");
    EXPECT_EQ(Location::current().name, "home");
}

} // namespace
