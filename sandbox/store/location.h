// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace sandbox {

// Where a gateway lives.
struct Location {
    std::string directory;
    std::string name;

    std::string storeFile() const { return directory + "/" + name + ".db"; }
    std::string logFile() const { return directory + "/" + name + ".log"; }

    // What the environment chooses: CALTOFAL_GATEWAY, else "home"; in CALTOFAL_SANDBOX_DIR, else caltofal/ in
    // XDG_STATE_HOME, else in ~/.local/state, else /tmp/caltofal-UID. The name is not judged here.
    static Location current();

    // The named gateway in the directory that the environment chooses.
    static Location named(std::string_view name);
};

// Letters, digits, ".", "_" and "-", at least one.
bool isGatewayName(std::string_view name);

// Such a name that begins with neither "." nor "-": it is no hidden file and no option. A gateway that has another name
// is read, changed and removed all the same.
bool isNewGatewayName(std::string_view name);

// How long to wait for other processes' locks, in milliseconds: CALTOFAL_SANDBOX_BUSY_MS, else 10,000.
int lockPatienceMs();

} // namespace sandbox
