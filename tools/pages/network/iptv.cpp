// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace cli {

Page iptvPage() {
    const int enabled = ask(Zintu_isEnabledIptvStb, {"Device.X_ZINTU_Multi_Bridge: there is no IPTV bridge"});
    return {{{"", "", {{"set_top_box", "IPTV set-top box", flag(enabled), {}}}}}, {}};
}

const Noun kIptvNoun = {"iptv", "Whether an IPTV set-top box port is bridged", "", showPage<iptvPage>};

} // namespace cli
