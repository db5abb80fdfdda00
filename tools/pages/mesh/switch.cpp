// SPDX-License-Identifier: MIT
// `mesh enable` and `mesh disable`
#include "pages/mesh/pages.h"

#include "caltofal.h"
#include "pages/layer/call.h"

namespace cli::mesh {
namespace {

template <bool enable>
Run define(CLI::App & /*command*/) {
    return [] {
        ask([] { return ZINTU_meshgrove_set_enable_value(enable ? 1 : 0); }, {"the mesh can not be switched"});
        return Report{{{"enabled", enable}}, {}, {}, {}};
    };
}

} // namespace

const Noun kEnableVerb = {"enable", "Switch the mesh on", "", define<true>};

const Noun kDisableVerb = {"disable", "Switch the mesh off", "", define<false>};

} // namespace cli::mesh
