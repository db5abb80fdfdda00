// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"

namespace pages {

int operationMode() {
    return ask(ZintuGet_OperMode, {kNoMode});
}

Page mode() {
    const int mode = operationMode();
    return pageOf({
        {"mode", "Operation mode", mode},
        {"router", "Router or mesh master", (mode & kRouterBit) != 0},
        {"wifi_wan", "WAN over Wi-Fi", (mode & kWifiWanBit) != 0},
    });
}

} // namespace pages
