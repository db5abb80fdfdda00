// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/mesh/pages.h"

namespace pages::mesh {

Report enable(bool on) {
    ask([&] { return ZINTU_meshgrove_set_enable_value(on ? 1 : 0); }, {"the mesh cannot be switched"});
    return {.json = Value::object({{"enabled", on}})};
}

} // namespace pages::mesh
