// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace cli {

Page atmPage() {
    ZintuWanInfo info{};
    untouch(info.nAtmVpi, info.nAtmVci);
    ask([&] { return ZintuGet_AtmInfo(&info); }, {"no ATM link"});
    return {{{"",
              "",
              {
                  {"vpi", "VPI", number(info.nAtmVpi), {}},
                  {"vci", "VCI", number(info.nAtmVci), {}},
                  {"qos_class", "QoS class", text(info.sAtmQoSClass), {}},
              }}},
            {}};
}

const Noun kAtmNoun = {"atm", "ATM link 1", "", showPage<atmPage>};

} // namespace cli
