// SPDX-License-Identifier: MIT
#include "caltofal/trace.h"

#include "caltofal/console_capture.h"
#include "caltofal/terminal.h"
#include "pages/text.h"

#include <array>
#include <unistd.h>

namespace cli {
namespace {

constexpr std::array<std::string_view, 4> kTags = {"console", "stderr", "log", "request"};

bool shown = false;
int output = STDERR_FILENO;
std::array<std::string, kTags.size()> unfinished;

void show(std::string_view tag, std::string_view line) {
    const size_t start = line.find_first_not_of(" \t\r");
    if (start != std::string_view::npos) {
        writeAll(output, "[" + std::string(tag) + "] " + printable(line.substr(start)) + "\n");
    }
}

} // namespace

void showTrace() {
    shown = true;
}

void traceTo(int descriptor) {
    output = descriptor;
}

bool traceShown() {
    return shown;
}

void traceText(Source source, std::string_view text) {
    if (!shown) {
        return;
    }
    const auto index = static_cast<size_t>(source);
    std::string &line = unfinished[index];
    line += text;
    for (size_t end = line.find('\n'); end != std::string::npos; end = line.find('\n')) {
        show(kTags[index], std::string_view(line).substr(0, end));
        line.erase(0, end + 1);
    }
}

void traceCollect() {
    traceText(Source::Console, takeConsole());
}

} // namespace cli
