// SPDX-License-Identifier: MIT
// The pages that `status` shows beside the nouns of the same names. Each asks the gateway and throws Failure.
#pragma once

#include "caltofal/noun.h"
#include "pages/page.h"

namespace cli {

// What is said where the current network does not tell.
inline constexpr const char *kNoMode = "Device.X_ZINTU_CurrentNetwork: no OperationMode is given";
inline constexpr const char *kNoDefaultWan = "Device.X_ZINTU_CurrentNetwork: no WanIpInterface is given";

Page modePage();
Page gatewayPage();

// The IP interface object of the default WAN.
std::string gatewayInterface();

Page wanPage();
Page ipv6Page();
Page dslPage();
Page atmPage();
Page lanPage();
Page multiWanPage();
Page iptvPage();

// A noun that shows a page and takes no arguments.
template <Page (*page)()>
Run showPage(CLI::App & /*command*/) {
    return [] { return report(page()); };
}

} // namespace cli
