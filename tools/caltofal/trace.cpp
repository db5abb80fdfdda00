// SPDX-License-Identifier: MIT
#include "caltofal/trace.h"

#include "caltofal/printable.h"
#include "caltofal/terminal.h"
#include "pages/process/console.h"
#include "pages/process/output.h"
#include "pages/secret.h"

#include <array>
#include <sys/mman.h>
#include <unistd.h>

namespace cli {

using pages::Source;

namespace {

constexpr std::array<std::string_view, 4> kTags = {"console", "stderr", "log", "request"};

bool shown = false;
bool showSecrets = false;
int console = -1; // all console descriptors share its offset
std::array<std::string, kTags.size()> unfinished;

void show(std::string_view tag, std::string_view line) {
    const size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string_view::npos) {
        return;
    }
    std::string text(line.substr(start));
    if (!showSecrets) {
        text = pages::withoutSecrets(std::move(text));
    }
    writeAll(STDERR_FILENO, "[" + std::string(tag) + "] " + printable(text) + "\n");
}

void addText(Source source, std::string_view text) {
    const auto index = static_cast<size_t>(source);
    std::string &line = unfinished[index];
    line += text;
    for (size_t end = line.find('\n'); end != std::string::npos; end = line.find('\n')) {
        show(kTags[index], std::string_view(line).substr(0, end));
        line.erase(0, end + 1);
    }
}

// What else was written before comes first.
void takeText(Source source, std::string_view text) {
    collectConsole();
    addText(source, text);
}

} // namespace

void showTrace(bool secrets) {
    shown = true;
    showSecrets = secrets;
    pages::takeOutput(takeText);
}

void captureConsole() {
    console = memfd_create("console", MFD_CLOEXEC);
    if (console >= 0) {
        pages::redirectConsole(console, collectConsole);
    }
}

void collectConsole() {
    const off_t size = console < 0 ? 0 : lseek(console, 0, SEEK_CUR);
    if (size <= 0) {
        return;
    }
    std::string text(static_cast<size_t>(size), '\0');
    const ssize_t got = pread(console, text.data(), text.size(), 0);
    text.resize(got < 0 ? 0 : static_cast<size_t>(got));
    lseek(console, 0, SEEK_SET);
    if (shown) {
        addText(Source::Console, text);
    }
}

} // namespace cli
