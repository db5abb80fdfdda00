// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace cli {
namespace {

// Bits of the operation mode.
constexpr int32_t kWifiWan = 2;
constexpr int32_t kRouter = 4;

} // namespace

Page modePage() {
    const int mode = ask(ZintuGet_OperMode, {kNoMode});
    return {{{"",
              "",
              {
                  {"mode", "Operation mode", mode, {}},
                  {"router", "Router or mesh master", (mode & kRouter) != 0, {}},
                  {"wifi_wan", "WAN over Wi-Fi", (mode & kWifiWan) != 0, {}},
              }}},
            {}};
}

const Noun kModeNoun = {"mode", "The operation mode", "", showPage<modePage>};

} // namespace cli
