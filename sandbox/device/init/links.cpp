// SPDX-License-Identifier: MIT
#include "device/init/links.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <dirent.h>
#include <memory>
#include <string>
#include <unistd.h>

namespace box {
namespace {

constexpr pid_t kStock = 2048;
constexpr pid_t kMargin = 1024;

// A link that cannot be made is one that stands there already.
void link(const std::string &target, const std::string &path) {
    [[maybe_unused]] const int result = symlink(target.c_str(), path.c_str());
}

// Calls visit(name) for each entry but "." and "..".
template <class Visit>
void eachEntry(const std::string &directory, Visit visit) {
    const std::unique_ptr<DIR, int (*)(DIR *)> open(opendir(directory.c_str()), closedir);
    while (const dirent *entry = open ? readdir(open.get()) : nullptr) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            visit(name);
        }
    }
}

bool isNumber(const std::string &name) {
    return std::all_of(name.begin(), name.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

// The last number of /proc/loadavg; 0 when it cannot be read.
pid_t lastProcess() {
    const std::string path = std::string(kKernelProc) + "/loadavg";
    const std::unique_ptr<FILE, int (*)(FILE *)> file(std::fopen(path.c_str(), "re"), std::fclose);
    int last = 0;
    if (!file || std::fscanf(file.get(), "%*s %*s %*s %*s %d", &last) != 1) {
        return 0;
    }
    return last;
}

} // namespace

void linkPrograms() {
    // Where a system keeps /bin apart from /usr/bin, the box shows it at the first place.
    for (const char *source : {"/run/host/bin", "/usr/bin"}) {
        eachEntry(source, [&](const std::string &name) { link(std::string(source) + "/" + name, "/bin/" + name); });
    }
}

void linkProc() {
    eachEntry(kKernelProc, [](const std::string &name) {
        if (!isNumber(name) && name != "net") {
            link(".kernel/" + name, "/proc/" + name);
        }
    });
    eachEntry(std::string(kKernelProc) + "/self/net",
              [](const std::string &name) { link("../self/net/" + name, "/proc/net/" + name); });
}

void ProcessLinks::extend() {
    const pid_t wanted = lastProcess() + kMargin;
    while (linked_ < wanted) {
        for (const pid_t end = linked_ + kStock; linked_ < end;) {
            const std::string number = std::to_string(++linked_);
            link(".kernel/" + number, "/proc/" + number);
        }
    }
}

} // namespace box
