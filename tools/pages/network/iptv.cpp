// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace pages {

Page iptv() {
    const int enabled = ask(Zintu_isEnabledIptvStb, {"Device.X_ZINTU_Multi_Bridge: there is no IPTV bridge"});
    return pageOf({{"set_top_box", "IPTV set-top box", flag(enabled)}});
}

} // namespace pages
