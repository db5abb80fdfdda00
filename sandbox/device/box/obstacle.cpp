// SPDX-License-Identifier: MIT
#include "device/box/obstacle.h"

#include <fstream>

namespace box {
namespace {

struct Setting {
    const char *file;
    const char *forbids; // the value that keeps users from making namespaces
    const char *remedy;
};

constexpr Setting kSettings[] = {
    {"/proc/sys/kernel/unprivileged_userns_clone", "0", "as root: sysctl -w kernel.unprivileged_userns_clone=1"},
    {"/proc/sys/user/max_user_namespaces", "0", "as root: sysctl -w user.max_user_namespaces=15000"},
    {"/proc/sys/kernel/apparmor_restrict_unprivileged_userns", "1",
     "as root: sysctl -w kernel.apparmor_restrict_unprivileged_userns=0"},
};

constexpr const char *kContainerRemedy = "a container must be started so that it may make namespaces and mount /proc, "
                                         "for example with docker run --privileged";

const char *remedy() {
    for (const Setting &setting : kSettings) {
        std::string value;
        if (std::ifstream(setting.file) >> value && value == setting.forbids) {
            return setting.remedy;
        }
    }
    return kContainerRemedy;
}

} // namespace

Obstacle bwrapObstacle(const std::string &complaint) {
    const std::string line = complaint.substr(0, complaint.find('\n'));
    return Obstacle((line.empty() ? "bwrap failed" : line) + "; " + remedy());
}

} // namespace box
