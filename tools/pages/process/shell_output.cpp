// SPDX-License-Identifier: MIT
#include "pages/process/shell_output.h"

#include "caltofal/trace.h"
#include "pages/failure.h"

#include <array>
#include <fcntl.h>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace cli {
namespace {

constexpr size_t kLineMax = 200; // bytes of a complaint that are quoted

int copyOf(int descriptor) {
    return fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
}

void giveBack(int &copy, int descriptor) {
    dup2(copy, descriptor);
    close(copy);
    copy = -1;
}

} // namespace

ShellOutput::ShellOutput()
    : memory_(memfd_create("shell", MFD_CLOEXEC)), out_(copyOf(STDOUT_FILENO)), err_(copyOf(STDERR_FILENO)) {
    if (memory_ < 0 || out_ < 0 || err_ < 0) {
        throw std::system_error(errno, std::generic_category(), "output of the device's tools");
    }
    traceTo(err_);
    dup2(memory_, STDOUT_FILENO);
    dup2(memory_, STDERR_FILENO);
}

std::string ShellOutput::end() {
    if (memory_ < 0) {
        return {};
    }
    traceCollect();
    traceTo(STDERR_FILENO);
    giveBack(out_, STDOUT_FILENO);
    giveBack(err_, STDERR_FILENO);
    std::string first;
    off_t at = 0;
    std::array<char, 4096> block;
    for (ssize_t got = 0; (got = pread(memory_, block.data(), block.size(), at)) > 0; at += got) {
        const std::string_view text(block.data(), static_cast<size_t>(got));
        traceText(Source::Stderr, text);
        first += at == 0 ? text.substr(0, kLineMax) : "";
    }
    traceText(Source::Stderr, at > 0 ? "\n" : "");
    close(memory_);
    memory_ = -1;
    return first.substr(0, first.find('\n'));
}

void failOfShell(const std::string &message, const std::string &complaint) {
    throw Failure(Exit::Failed, message + (complaint.empty() ? "" : " (" + complaint + ")"));
}

} // namespace cli
