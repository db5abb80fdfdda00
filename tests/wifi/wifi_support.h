// SPDX-License-Identifier: MIT
// What the Wi-Fi and mesh tests share.
#pragma once

#include "device.h"
#include "platform.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <random>
#include <sstream>

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

// The parts of a text that '&' separates.
inline std::vector<std::string> parts(const std::string &text) {
    std::vector<std::string> result;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, '&');) {
        result.push_back(part);
    }
    return result;
}

// Rows "input=answer&input=answer": each input must get its answer.
inline void expectEach(const std::string &rows, const std::function<std::string(const std::string &)> &answer) {
    for (const std::string &row : parts(rows)) {
        const size_t equals = row.find('=');
        EXPECT_EQ(row.substr(equals + 1), answer(row.substr(0, equals))) << row;
    }
}

// `count` of the characters and of the longer pieces, taken at random, one behind the other.
inline std::string randomText(std::mt19937 &random, std::string_view characters, const std::vector<std::string> &pieces,
                              size_t count) {
    std::string text;
    for (; count > 0; --count) {
        const size_t choice = random() % (characters.size() + pieces.size());
        text += choice < pieces.size() ? pieces[choice] : std::string(1, characters[choice - pieces.size()]);
    }
    return text;
}

// The texts that fgets() cuts out of a file with a buffer of some size.
inline std::vector<std::string> linesOf(std::string content, size_t size) {
    std::vector<std::string> lines;
    std::string line(size, '\0');
    FILE *file = content.empty() ? nullptr : fmemopen(content.data(), content.size(), "r");
    while (file && fgets(line.data(), static_cast<int>(size), file)) {
        lines.emplace_back(line.c_str());
    }
    if (file) {
        fclose(file);
    }
    return lines;
}

} // namespace test
