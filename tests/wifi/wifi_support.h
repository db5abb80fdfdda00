// SPDX-License-Identifier: MIT
// What the Wi-Fi and mesh tests share.
#pragma once

#include "device.h"
#include "platform.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <random>

namespace test {

// A platform and a shell without anything from the test before.
class WifiTest : public LibraryTest {
  protected:
    void SetUp() override {
        LibraryTest::SetUp();
        resetShell();
        failOpen(0);
    }
};

// A location tag of the Wi-Fi unit with its line number taken out, and that of a refused request.
inline std::string tag(const std::string &function) {
    return vola("ZintuWifiUtil", 0, function);
}
inline std::string refused(const std::string &function) {
    return "\n\n\t[" + function + " : 0] faltocal_send_main_multi_obj is Failure\n";
}

// The console since the last call, line numbers taken out.
inline std::string console() {
    return withoutLines(takeConsole());
}

// `count` pieces taken at random, one behind the other.
inline std::string randomText(std::mt19937 &random, const std::vector<std::string> &pieces, size_t count) {
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

// The texts that fgets() cuts out of a file with a buffer of 128 bytes.
inline std::vector<std::string> linesOf(const std::string &content) {
    std::vector<std::string> lines;
    if (content.empty()) {
        return lines;
    }
    const std::unique_ptr<FILE, int (*)(FILE *)> file(fmemopen(const_cast<char *>(content.data()), content.size(), "r"),
                                                      fclose);
    for (char line[128]; fgets(line, sizeof(line), file.get());) {
        lines.emplace_back(line);
    }
    return lines;
}

} // namespace test
