// SPDX-License-Identifier: MIT
#include "caltofal/assigned_words.h"
#include "caltofal/commands/commands.h"
#include "caltofal/terminal_wait.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/text.h"
#include "pages/wifi/pages.h"

namespace cli {
namespace {

using namespace pages;

constexpr int kSecond = 1000;
constexpr int kUnitMax = 60 * kSecond;

constexpr Argument kPace = {"--pace", Take::Option, "How long a unit of the retry table lasts, 1000 where not given",
                            "MS"};

std::chrono::milliseconds unitOf(const Arguments &given) {
    const std::string &word = given.word("--pace");
    return std::chrono::milliseconds(word.empty() ? kSecond : checkedNumber(word, "--pace", 1, kUnitMax));
}

template <wifi::Subject subject>
Show prepareSettings(const Arguments &given) {
    const int number = checkedInstance(given.word("NUMBER"), subject == wifi::Subject::Ssid ? "SSID" : "radio");
    return [number] { return wifi::settings(subject, number); };
}

Show prepareSet(const Arguments &given) {
    const wifi::Subject subject = wifi::subjectOf(given.word("SUBJECT"));
    wifi::SettingsChange change{
        .subject = subject,
        .instance = checkedInstance(given.word("NUMBER"), subject == wifi::Subject::Ssid ? "SSID" : "radio"),
        .wanted = {},
        .uiWords = given.given("--ui"),
        .dryRun = given.given("--dry-run"),
        .storeOnly = given.given("--db-only"),
        .force = given.given("--force")};
    std::string before = given.word("SUBJECT") + " " + given.word("NUMBER");
    for (const std::string &word : given.words("SETTING")) {
        change.wanted.push_back(assignment(word, before));
        before = withoutValue(word);
    }
    return [change] { return wifi::changeSettings(change); };
}

template <Report (*page)(const InterfaceName &)>
Show prepareInterface(const Arguments &given) {
    return [interface = InterfaceName(given.word("INTERFACE"))] { return page(interface); };
}

std::string macOf(const Arguments &given) {
    return given.given("--mac") ? checkedMac(given.word("--mac")) : "";
}

Show prepareStations(const Arguments &given) {
    return [interface = InterfaceName(given.word("INTERFACE")), mac = macOf(given)] {
        return wifi::stations(interface, mac);
    };
}

Show prepareClients(const Arguments &given) {
    return [radio = checkedInstance(given.word("RADIO"), "radio")] { return wifi::clients(radio); };
}

Show prepareAcl(const Arguments &given) {
    const int ssid = checkedInstance(given.word("SSID"), "SSID");
    const std::string mac = macOf(given);
    return [ssid, mac] { return mac.empty() ? wifi::macFilter(ssid) : wifi::mayJoin(ssid, mac); };
}

Show prepareScan(const Arguments &given) {
    wifi::ScanRequest request = wifi::checkedScan(given.word("INTERFACE"), given.word("--ssid"));
    request.unit = unitOf(given);
    return [request] {
        TerminalWait wait;
        return wifi::scan(request, wait);
    };
}

std::optional<InterfaceName> interfaceOf(const Arguments &given) {
    return given.given("INTERFACE") ? std::optional(InterfaceName(given.word("INTERFACE"))) : std::nullopt;
}

Show prepareSurvey(const Arguments &given) {
    if (given.given("--chart")) {
        if (given.given("--ssid")) {
            throw Usage("--chart and --ssid exclude each other");
        }
        return [interface = interfaceOf(given)] { return wifi::surveyChart(interface); };
    }
    return [interface = interfaceOf(given), ssid = checkedSsid(given.word("--ssid"))] {
        return wifi::survey(interface, ssid);
    };
}

Show prepareEndpoint(const Arguments &given) {
    return [interface = interfaceOf(given)] { return interface ? wifi::endPoint(*interface) : wifi::endPoint(); };
}

Show prepareWpsStart(const Arguments &given) {
    return [unit = unitOf(given)] {
        TerminalWait wait;
        return wifi::startWps(unit, wait);
    };
}

Show prepareConvert(const Arguments &given) {
    const std::string to = given.given("--to") ? given.word("--to") : "ui";
    if (to != "ui" && to != "fapi") {
        throw Usage("--to is ui or fapi, not " + inQuotes(to));
    }
    if (!given.given("TABLE")) {
        return wifi::conversions;
    }
    const std::string &table = given.word("TABLE");
    if (!given.given("VALUE")) {
        return [table] { return wifi::conversionWords(table); };
    }
    return [table, value = given.word("VALUE"), toUi = to == "ui"] { return wifi::convert(table, value, toUi); };
}

Show prepareEscape(const Arguments &given) {
    return [text = given.word("TEXT")] { return wifi::escaped(text); };
}

Show prepareHex(const Arguments &given) {
    return [text = given.word("TEXT"), decode = given.given("--decode")] {
        return decode ? wifi::fromHex(text) : wifi::toHex(text);
    };
}

const Command kWpsVerbs[] = {
    {"start",
     "Press the button, and wait until a device has joined",
     "--pace 200",
     prepareWpsStart,
     {kPace},
     kDevice | kActs},
    {"cancel", "End a run", "", just<wifi::cancelWps>, {}, kDevice | kActs},
    {"reset", "Forget what WPS has configured", "", just<wifi::resetWps>, {}, kDevice | kActs},
};

const Command kWifiVerbs[] = {
    {"radios", "All radios, a line each", "", just<wifi::radios>},
    {"radio",
     "The settings of a radio and of its first access point",
     "1",
     prepareSettings<wifi::Subject::Radio>,
     {{"NUMBER", Take::Word, "The instance number in the configuration layer"}}},
    {"ssids", "All SSIDs, a line each, with their numbers and interfaces", "", just<wifi::ssids>},
    {"ssid",
     "The settings of an SSID, its access point and its security",
     "1\n9 --json",
     prepareSettings<wifi::Subject::Ssid>,
     {{"NUMBER", Take::Word, "The instance number in the configuration layer"}}},
    {"set",
     "Change settings of an SSID or a radio, writing only what differs",
     "ssid 1 SSID=attic SSIDAdvertisementEnabled=true\n"
     "radio 1 --ui OperatingChannelBandwidth=40 ExtensionChannel=upper --dry-run\n"
     "radio 2 Channel=44 --db-only",
     prepareSet,
     {{"SUBJECT", Take::Word, "ssid or radio"},
      {"NUMBER", Take::Word, "Its instance number"},
      {"SETTING", Take::Assignments, "New values, named as `wifi ssid` and `wifi radio` show them", "NAME=VALUE..."},
      {"--ui", Take::Flag, "The values are in the user interface's words"},
      {"--dry-run", Take::Flag,
       "Only tell what would be written; the gateway is not asked whether it takes the values"},
      {"--db-only", Take::Flag, "Store all that is given without applying: in force after the next start"},
      {"--force", Take::Flag, "Write values that are the same as well"}},
     kActs},
    {"channels",
     "The channels that an interface's radio may use",
     "wlan0\nwlan2 --json",
     prepareInterface<wifi::channels>,
     {{"INTERFACE", Take::Word, "A wireless interface, such as wlan0"}},
     kDevice},
    {"channel",
     "The channel in use",
     "wlan0",
     prepareInterface<wifi::currentChannel>,
     {{"INTERFACE", Take::Word, "A wireless interface, such as wlan0"}},
     kDevice},
    {"stations",
     "The associated stations of an interface, with their signal",
     "wlan2\nwlan2 --mac 00:00:5e:00:53:10",
     prepareStations,
     {{"INTERFACE", Take::Word, "An access point's interface, such as wlan0"},
      {"--mac", Take::Option, "Only that station", "MAC"}},
     kDevice},
    {"clients",
     "The number of clients of a radio's active SSIDs",
     "1",
     prepareClients,
     {{"RADIO", Take::Word, "A radio's instance number"}}},
    {"acl",
     "The MAC filter of an SSID",
     "1\n9 --mac 00:00:5e:00:53:99",
     prepareAcl,
     {{"SSID", Take::Word, "An SSID's instance number"},
      {"--mac", Take::Option, "Only tell whether that station may join", "MAC"}}},
    {"scan",
     "Look for the networks around and show them",
     "wlan0 --pace 100\nwlan0 --ssid cafe-open --pace 60",
     prepareScan,
     {{"INTERFACE", Take::Word, "The interface to scan on, such as wlan0"},
      {"--ssid", Take::Option, "Look for that network only", "SSID"},
      kPace},
     kDevice},
    {"survey",
     "The networks that the last scans found",
     "\nwlan0\n--chart",
     prepareSurvey,
     {{"INTERFACE", Take::Optional, "Only the result of that interface"},
      {"--ssid", Take::Option, "Only that network", "SSID"},
      {"--chart", Take::Flag, "Draw which channels the networks take; the own ones are marked"}},
     kDevice},
    {"wps", "WPS by push-button", "start --pace 200", nullptr, {}, kPage, kWpsVerbs},
    {"endpoint",
     "A repeater's uplink",
     "wlan1",
     prepareEndpoint,
     {{"INTERFACE", Take::Optional, "That interface; otherwise the enabled end point's"}},
     kDevice},
    {"convert",
     "Values of the configuration layer (FAPI) and of the user interface (UI)",
     "bandwidth 40MHz\nsecurity WEP --to fapi\nstandards\nfrequency 5180",
     prepareConvert,
     {{"TABLE", Take::Optional, "A conversion; without one they are listed"},
      {"VALUE", Take::MayBeAny, "Without it the table is shown"},
      {"--to", Take::Option, "Whose words are wanted: ui where not given", "ui|fapi"}}},
    {"hex",
     "The bytes of a text as hexadecimal digits, and back",
     "VOLA\n564f4c41 --decode",
     prepareHex,
     {{"TEXT", Take::Text, "Any text"}, {"--decode", Take::Flag, "TEXT is hexadecimal: print its bytes"}}},
    {"escape",
     "A text as it stands in a UCI command line of the shell",
     "O'Brien",
     prepareEscape,
     {{"TEXT", Take::Text, "Any text"}}},
    {"clear-confs",
     "Empty the directory of the generated Wi-Fi configuration",
     "",
     just<wifi::clearConfs>,
     {},
     kDevice | kActs},
};

const Command kWifiCommands[] = {
    {"wifi",
     "Radios, SSIDs, stations, surveys, WPS, end points",
     "radios\nssid 1\nstations wlan2",
     nullptr,
     {},
     kPage,
     kWifiVerbs},
};

} // namespace

std::span<const Command> wifiCommands() {
    return kWifiCommands;
}

} // namespace cli
