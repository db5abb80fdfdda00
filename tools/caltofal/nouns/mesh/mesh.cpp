// SPDX-License-Identifier: MIT
#include "nouns/nouns.h"

#include "command.h"
#include "nouns/mesh/verbs.h"

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
