// SPDX-License-Identifier: MIT
// set, add and del: all objects of a command line go in one message, which is done whole or not at all.
#include "caltofal/commands.h"

#include "pages/failure.h"
#include "pages/objects/words.h"

#include <memory>

namespace cli {
namespace {

struct Arguments {
    std::vector<std::string> words;
    bool storeOnly = false;
};

Json jsonOf(const std::vector<Object> &objects) {
    Json list = Json::array();
    for (const Object &object : objects) {
        Json entry = {{"object", object.name}};
        if (!object.parameters.empty()) {
            Json &parameters = entry["parameters"] = Json::object();
            for (const Parameter &parameter : object.parameters) {
                put(parameters, parameter.name, typed(parameter.name, parameter.value));
            }
        }
        list.push_back(entry);
    }
    return list;
}

Report report(const char *what, const std::vector<Object> &objects, const Arguments &arguments) {
    return {{{what, jsonOf(objects)}, {"applied", !arguments.storeOnly}}, {}, {}, {}};
}

Report runSet(const Arguments &arguments) {
    const std::vector<Object> objects = objectsToChange(arguments.words);
    for (const Object &object : objects) {
        if (object.parameters.empty()) {
            throw Usage(object.name + ": nothing to set");
        }
    }
    change(objects, Change::Set, arguments.storeOnly);
    return report("set", objects, arguments);
}

// The layer puts the new instances' names into the message.
Report runAdd(const Arguments &arguments) {
    const std::vector<Object> added = change(objectsToChange(arguments.words), Change::Add, arguments.storeOnly);
    Report result = report("added", added, arguments);
    for (const Object &object : added) {
        result.table.rows.push_back({{object.name}});
    }
    return result;
}

Report runDel(const Arguments &arguments) {
    std::vector<Object> objects;
    for (const std::string &word : arguments.words) {
        objects.push_back({checkedPath(word), {}});
    }
    change(objects, Change::Delete, arguments.storeOnly);
    return report("deleted", objects, arguments);
}

template <Report (*run)(const Arguments &)>
Run defineChange(CLI::App &command, const char *type, const char *what) {
    const auto arguments = std::make_shared<Arguments>();
    addArguments(command, "OBJECT", arguments->words, type, what);
    addFlag(command, "--db-only", arguments->storeOnly, "Store without applying: in force after the next start");
    return [arguments] { return run(*arguments); };
}

Run defineSet(CLI::App &command) {
    return defineChange<runSet>(command, "NAME=VALUE...",
                                "An object and its new values, then more objects; also OBJECT.NAME=VALUE");
}

Run defineAdd(CLI::App &command) {
    return defineChange<runAdd>(command, "[NAME=VALUE...]", "A table and the new instance's values, then more tables");
}

Run defineDel(CLI::App &command) {
    return defineChange<runDel>(command, "...", "The instances to delete");
}

} // namespace

const Noun kSetNoun = {"set", "Change parameters, all or nothing",
                       "Device.WiFi.Radio.1 AutoChannelEnable=false Channel=6\n"
                       "Device.WiFi.Radio.1.Channel=6\n"
                       "Device.WiFi.SSID.1 SSID=attic Device.WiFi.SSID.2 SSID=attic\n"
                       "Device.X_ZINTU_CurrentNetwork OperationMode=4 --db-only",
                       defineSet};

const Noun kAddNoun = {"add", "Add an instance to a table and print its name",
                       "Device.DHCPv4.Server.Pool.1.StaticAddress Chaddr=02:00:00:00:00:01 Yiaddr=192.168.1.50",
                       defineAdd};

const Noun kDelNoun = {"del", "Delete instances", "Device.DHCPv4.Server.Pool.1.StaticAddress.1", defineDel};

} // namespace cli
