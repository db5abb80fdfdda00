// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace pages {

Page atm() {
    ZintuWanInfo info{};
    untouch(info.nAtmVpi, info.nAtmVci);
    ask([&] { return ZintuGet_AtmInfo(&info); }, {"no ATM link"});
    return pageOf({
        {"vpi", "VPI", number(info.nAtmVpi)},
        {"vci", "VCI", number(info.nAtmVci)},
        {"qos_class", "QoS class", text(info.sAtmQoSClass)},
    });
}

} // namespace pages
