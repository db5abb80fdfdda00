// SPDX-License-Identifier: MIT
#include "caltofal/terminal.h"

#include "caltofal/printable.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace cli {
namespace {

constexpr std::string_view kClearLine = "\r\x1b[K";

bool canMoveCursor() {
    const char *terminal = getenv("TERM");
    return terminal && std::string_view(terminal) != "dumb" && isatty(STDERR_FILENO) == 1;
}

} // namespace

Screen screen(int stream) {
    winsize size{};
    const bool known = isatty(stream) == 1 && ioctl(stream, TIOCGWINSZ, &size) == 0;
    return known ? Screen{size.ws_col, size.ws_row} : Screen();
}

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        text.remove_prefix(written < 0 ? 0 : static_cast<size_t>(written));
    }
}

Progress::Progress() : terminal_(canMoveCursor() ? fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3) : -1) {}

Progress::~Progress() {
    if (terminal_ >= 0) {
        writeAll(terminal_, shown_.empty() ? "" : kClearLine);
        close(terminal_);
    }
}

void Progress::show(const std::string &line) {
    if (terminal_ >= 0 && line != shown_) {
        shown_ = line;
        winsize size{};
        const bool known = ioctl(terminal_, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
        writeAll(terminal_, std::string(kClearLine) + printable(line).substr(0, known ? size.ws_col - 1 : line.size()));
    }
}

} // namespace cli
