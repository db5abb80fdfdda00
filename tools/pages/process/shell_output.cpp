// SPDX-License-Identifier: MIT
#include "pages/process/shell_output.h"

#include "pages/failure.h"
#include "pages/process/output.h"

#include <array>
#include <mutex>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace pages {
namespace {

constexpr size_t kLineMax = 200; // bytes of a complaint that are quoted

std::mutex &turn() {
    static std::mutex guard;
    return guard;
}

} // namespace

ShellOutput::ShellOutput() : memory_(memfd_create("shell", MFD_CLOEXEC)) {
    if (memory_ < 0) {
        throw std::system_error(errno, std::generic_category(), "output of the device's tools");
    }
    capture(memory_);
}

std::string ShellOutput::end() {
    if (memory_ < 0) {
        return {};
    }
    capture(-1);
    std::string first;
    off_t at = 0;
    std::array<char, 4096> block;
    for (ssize_t got = 0; (got = pread(memory_, block.data(), block.size(), at)) > 0; at += got) {
        const std::string_view text(block.data(), static_cast<size_t>(got));
        output(Source::Stderr, text);
        first += at == 0 ? text.substr(0, kLineMax) : "";
    }
    output(Source::Stderr, at > 0 ? "\n" : "");
    close(memory_);
    memory_ = -1;
    return first.substr(0, first.find('\n'));
}

void failOfShell(const std::string &message, const std::string &complaint) {
    throw Failure(Category::Failed, message + (complaint.empty() ? "" : " (" + complaint + ")"));
}

DeviceTurn::DeviceTurn() {
    turn().lock();
}

DeviceTurn::~DeviceTurn() {
    turn().unlock();
}

} // namespace pages
