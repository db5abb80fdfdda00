// SPDX-License-Identifier: MIT
// Sixteen threads over all getters at once: each answers as it does alone.
#include "device.h"
#include "getters.h"

#include <thread>

using namespace test;

namespace {

class Threads : public LibraryTest {
  protected:
    void SetUp() override {
        LibraryTest::SetUp();
        leaveNodes();
        platform().otherwise(richAnswer());
    }
};

TEST_F(Threads, AllGettersFromSixteenThreads) {
    // The shell of the test records its commands unlocked: this is about the configuration layer.
    std::vector<Getter> rows = getters();
    std::erase_if(rows, [](const Getter &getter) { return std::string(getter.name) == "ChannelList"; });
    std::vector<std::string> alone;
    for (const Getter &getter : rows) {
        alone.push_back(getter.run());
    }
    std::vector<std::thread> threads;
    for (size_t t = 0; t < 16; ++t) {
        threads.emplace_back([&, t] {
            for (size_t i = 0; i < 2 * rows.size(); ++i) {
                const size_t row = (i + t) % rows.size();
                EXPECT_EQ(alone[row], rows[row].run()) << rows[row].name;
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

} // namespace
