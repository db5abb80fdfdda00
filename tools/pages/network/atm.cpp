// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/network/pages.h"

namespace pages {

Page atm() {
    ZintuWanInfo info{};
    untouch(info.nAtmVpi, info.nAtmVci);
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_AtmInfo(&info); }, {"no ATM link"});
    Page page = pageOf({
        {"vpi", "VPI", number(info.nAtmVpi)},
        {"vci", "VCI", number(info.nAtmVci)},
        {"qos_class", "QoS class", text(info.sAtmQoSClass)},
    });
    lacking.tell(page.notes);
    return page;
}

} // namespace pages
