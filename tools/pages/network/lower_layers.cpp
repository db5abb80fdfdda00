// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"

#include <algorithm>
#include <memory>

namespace cli {
namespace {

struct Arguments {
    std::string object;
    bool walk = false;
};

std::string below(const std::string &object) {
    char layers[128] = "";
    ask([&] { return ZintuGet_LowerLayers(object.c_str(), layers); }, {object + ": no lower layers"});
    return text(layers);
}

Report run(const Arguments &arguments) {
    Json layers = Json::array();
    Table table;
    for (std::string object = checkedPath(arguments.object); !object.empty();) {
        const std::string next = below(object);
        const bool seen = std::find(layers.begin(), layers.end(), next) != layers.end();
        if (next.empty() || seen) {
            break;
        }
        layers.push_back(next);
        table.rows.push_back({{next}});
        // A list names several: the walk goes on below the first.
        object = arguments.walk ? next.substr(0, next.find(',')) : "";
    }
    Json json = {{"object", arguments.object}, {"lower_layers", layers}};
    return {json, table, {}, {}};
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArgument(command, "OBJECT", arguments->object, "An object of the interface stack");
    addFlag(command, "--walk", arguments->walk, "Go on downwards to the physical interface");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kLowerLayersNoun = {"lower-layers", "What lies below an object in the interface stack",
                               "Device.IP.Interface.3 --walk", define};

} // namespace cli
