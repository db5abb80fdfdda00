// SPDX-License-Identifier: MIT
// The stations in the driver's peer statistics.
#pragma once

#include "caltofal.h"

namespace wifi {

// Collects stations from lines of the form "value : description", handed over one at a time: a station's MAC address,
// followed by a signal strength per antenna.
class StationParser {
  public:
    // Fills a zeroed list. `macFilter` is the one address wanted, or nullptr.
    StationParser(const char *macFilter, WifiStaList &list) : filter_(macFilter), list_(list) {}

    // Takes a line and cuts it up.
    void addLine(char *line);

  private:
    void addStation(const char *mac);
    void addAntenna(int rssi);
    [[nodiscard]] bool isWanted(const char *mac) const;

    const char *filter_;
    WifiStaList &list_;
    WifiStaEntry *station_ = nullptr; // whose antennas are being read
    int antenna_ = 0;
};

} // namespace wifi
