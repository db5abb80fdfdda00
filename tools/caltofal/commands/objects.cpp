// SPDX-License-Identifier: MIT
#include "caltofal/commands/commands.h"
#include "caltofal/object_words.h"
#include "pages/checked.h"
#include "pages/objects/pages.h"

namespace cli {
namespace {

using namespace pages;

Show prepareGet(const Arguments &given) {
    objects::Query query{.objects = objectsToRead(given.words("OBJECT")),
                         .leaf = given.given("--leaf"),
                         .defaults = given.given("--defaults"),
                         .names = given.given("--names"),
                         .types = given.given("--types"),
                         .valuesOnly = given.given("--values")};
    for (const std::string &word : given.words("--where")) {
        query.where.push_back(assignment(word, "--where"));
    }
    check(query);
    return [query] { return objects::read(query); };
}

template <Report (*change)(const std::vector<Object> &, bool)>
Show prepareChange(const Arguments &given) {
    return [words = objectsToChange(given.words("OBJECT")), storeOnly = given.given("--db-only")] {
        return change(words, storeOnly);
    };
}

Show prepareDel(const Arguments &given) {
    for (const std::string &path : given.words("OBJECT")) {
        refuseStar(path);
    }
    return [words = given.words("OBJECT"), storeOnly = given.given("--db-only")] {
        return objects::remove(words, storeOnly);
    };
}

Show prepareFind(const Arguments &given) {
    return [search = objects::Search{given.word("OBJECT"), given.word("FILTER"), given.word("VALUE"),
                                     given.word("WANTED")}] { return find(search); };
}

constexpr Argument kDbOnly = {"--db-only", Take::Flag, "Store without applying: in force after the next start"};

const Command kObjectsCommands[] = {
    {"get",
     "Read objects or parameters",
     "Device.IP.Interface.1 Status Name\n"
     "Device.Hosts.Host --where Active=true HostName IPAddress\n"
     "Device.WiFi.Radio.1 --leaf --json\n"
     "Device.Hosts.Host.*.HostName\n"
     "Device.WiFi --names\n"
     "Device.WiFi.Radio.1.Channel --values",
     prepareGet,
     {{"OBJECT", Take::Words, "An object, the names of the parameters wanted (none: all), then more objects",
       "[PARAM...]"},
      {"--where", Take::Repeatable, "Only instances whose parameter has that value; repeatable", "NAME=VALUE"},
      {"--leaf", Take::Flag, "The object's own parameters, nothing below it"},
      {"--defaults", Take::Flag, "The values after a factory reset"},
      {"--names", Take::Flag, "What stands directly below: parameters, and objects with a dot behind"},
      {"--types", Take::Flag, "Type, access and default of the parameters; the sandbox tells them"},
      {"--values", Take::Flag, "The values alone, one a line"}}},
    {"set",
     "Change parameters, all or nothing",
     "Device.WiFi.Radio.1 AutoChannelEnable=false Channel=6\n"
     "Device.WiFi.Radio.1.Channel=6\n"
     "Device.WiFi.SSID.1 SSID=attic Device.WiFi.SSID.2 SSID=attic\n"
     "Device.X_ZINTU_CurrentNetwork OperationMode=4 --db-only",
     prepareChange<objects::set>,
     {{"OBJECT", Take::Assignments, "An object and its new values, then more objects; also OBJECT.NAME=VALUE",
       "NAME=VALUE..."},
      kDbOnly},
     kActs},
    {"add",
     "Add an instance to a table and print its name",
     "Device.DHCPv4.Server.Pool.1.StaticAddress Chaddr=02:00:00:00:00:01 Yiaddr=192.168.1.50",
     prepareChange<objects::add>,
     {{"OBJECT", Take::Assignments, "A table and the new instance's values, then more tables", "[NAME=VALUE...]"},
      kDbOnly},
     kActs},
    {"del",
     "Delete instances",
     "Device.DHCPv4.Server.Pool.1.StaticAddress.1",
     prepareDel,
     {{"OBJECT", Take::Words, "The instances to delete", "..."}, kDbOnly},
     kActs},
    {"find",
     "Find an instance by one parameter and read another",
     "Device.X_LANTIQ_COM_NwHardware.WANConnection ConnMode ETH UciSection",
     prepareFind,
     {{"OBJECT", Take::Word, "A table"},
      {"FILTER", Take::Word, "The parameter to compare"},
      {"VALUE", Take::Text, "What it must be"},
      {"WANTED", Take::Word, "The parameter to read (127 characters at most are shown)"}}},
};

} // namespace

std::span<const Command> objectCommands() {
    return kObjectsCommands;
}

} // namespace cli
