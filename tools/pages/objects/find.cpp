// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"

#include <memory>

namespace cli {
namespace {

struct Arguments {
    std::string object, filter, value, wanted;
};

constexpr size_t kAnswerSize = 128;

Report run(const Arguments &arguments) {
    char object[kAnswerSize] = "";
    char value[kAnswerSize] = "";
    const auto call = [&] {
        return zintu_GetValueFromDBInfo(checkedPath(arguments.object).c_str(), arguments.filter.c_str(),
                                        arguments.value.c_str(), arguments.wanted.c_str(), object, value);
    };
    ask(call, {arguments.object + ": no instance whose " + arguments.filter + " is \"" + arguments.value +
               "\" has a parameter " + arguments.wanted});
    return report(Page{{{"",
                         "",
                         {
                             {"object", "Object", text(object), {}},
                             {"value", arguments.wanted, typed(arguments.wanted, text(value)), {}},
                         }}},
                       {}});
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArgument(command, "OBJECT", arguments->object, "A table");
    addArgument(command, "FILTER", arguments->filter, "The parameter to compare");
    addArgument(command, "VALUE", arguments->value, "What it must be");
    addArgument(command, "WANTED", arguments->wanted, "The parameter to read (127 characters at most are shown)");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kFindNoun = {"find", "Find an instance by one parameter and read another",
                        "Device.X_LANTIQ_COM_NwHardware.WANConnection ConnMode ETH UciSection", define};

} // namespace cli
