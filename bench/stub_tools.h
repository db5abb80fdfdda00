// SPDX-License-Identifier: MIT
// The device's command-line tools as small scripts that print what the device's would, first on PATH.
#pragma once

#include <string>

namespace bench {

// The tools are there as long as the object is. It also sees to the directory /tmp/wlan_wave/.
class StubTools {
  public:
    StubTools();
    ~StubTools();
    StubTools(const StubTools &) = delete;
    StubTools &operator=(const StubTools &) = delete;

  private:
    std::string directory_;
    bool madeWaveDirectory_;
};

// The interface that the tools know; no real one has its name.
inline constexpr char kInterface[] = "bench0";

} // namespace bench
