// SPDX-License-Identifier: MIT
#include "nouns/nouns.h"

#include "caltofal.h"
#include "nouns/pages.h"
#include "page_call.h"

namespace cli {

Page iptvPage() {
    const int enabled = ask(Zintu_isEnabledIptvStb, {"Device.X_ZINTU_Multi_Bridge: there is no IPTV bridge"});
    return {{{"", "", {{"set_top_box", "IPTV set-top box", flag(enabled), {}}}}}, {}};
}

const Noun kIptvNoun = {"iptv", "Whether an IPTV set-top box port is bridged", "", showPage<iptvPage>};

} // namespace cli
