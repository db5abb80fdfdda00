// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal/command.h"
#include "pages/mesh/pages.h"

namespace cli {
namespace {

using namespace mesh;

Run define(CLI::App &command) {
    static constexpr const Noun *kVerbs[] = {&kStatusVerb, &kEnableVerb, &kDisableVerb, &kSyncVerb, &kIpVerb};
    return defineVerbs(command, "caltofal mesh", kVerbs);
}

} // namespace

const Noun kMeshNoun = {"mesh", "The roaming mesh and its satellites", "status -g mesh", define};

} // namespace cli
