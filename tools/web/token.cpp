// SPDX-License-Identifier: MIT
#include "token.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/random.h>
#include <system_error>
#include <unistd.h>

namespace web {
namespace {

[[noreturn]] void failOn(const std::string &what) {
    throw std::system_error(errno, std::generic_category(), what);
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
    // Under another name first: a file that is there already may be readable to others, and nobody sees half a secret.
    const std::string fresh = file + ".new";
    unlink(fresh.c_str());
    const int descriptor = open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0) {
        failOn(fresh);
    }
    const std::string line = std::string(secret) + "\n";
    const bool written = write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    if (close(descriptor) != 0 || !written || rename(fresh.c_str(), file.c_str()) != 0) {
        failOn(file);
    }
}

} // namespace web
