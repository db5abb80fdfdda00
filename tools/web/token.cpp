// SPDX-License-Identifier: MIT
#include "token.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/random.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace web {
namespace {

[[noreturn]] void failOn(const std::string &what) {
    throw std::system_error(errno, std::generic_category(), what);
}

const char *kindOf(mode_t mode) {
    switch (mode & S_IFMT) {
    case S_IFLNK:
        return "symbolic link";
    case S_IFDIR:
        return "directory";
    case S_IFIFO:
        return "FIFO";
    case S_IFSOCK:
        return "socket";
    default:
        return "device";
    }
}

// A file that takes the place of a device, or of what others write to, breaks more than it helps.
void checkReplaceable(const std::string &file) {
    struct stat found {};
    if (lstat(file.c_str(), &found) == 0 && !S_ISREG(found.st_mode)) {
        throw std::runtime_error(file + ": is a " + kindOf(found.st_mode) + ", and only a file is replaced");
    }
}

} // namespace

std::string randomToken() {
    std::array<unsigned char, 16> bytes{};
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        failOn("random numbers");
    }
    std::string token;
    for (const unsigned char byte : bytes) {
        constexpr char kDigits[] = "0123456789abcdef";
        token += kDigits[byte >> 4];
        token += kDigits[byte & 0xf];
    }
    return token;
}

bool isSameSecret(std::string_view given, std::string_view secret) {
    unsigned difference = given.size() != secret.size() ? 1 : 0;
    for (size_t i = 0; i < secret.size(); ++i) {
        const auto other = static_cast<unsigned char>(i < given.size() ? given[i] : 0);
        difference |= static_cast<unsigned char>(secret[i]) ^ other;
    }
    return difference == 0;
}

void writeSecret(const std::string &file, std::string_view secret) {
    checkReplaceable(file);
    // Under another name first: a file that is there already may be readable to others, and nobody sees half a secret.
    std::string fresh = file + ".XXXXXX";
    const int descriptor = mkostemp(fresh.data(), O_CLOEXEC); // for the owner alone
    if (descriptor < 0) {
        failOn(file);
    }
    const std::string line = std::string(secret) + "\n";
    const bool written = write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    if (close(descriptor) != 0 || !written || rename(fresh.c_str(), file.c_str()) != 0) {
        const int error = errno;
        unlink(fresh.c_str());
        errno = error;
        failOn(file);
    }
}

} // namespace web
