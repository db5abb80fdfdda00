// SPDX-License-Identifier: MIT
// `wifi set`: a snapshot of what the gateway holds, a comparison, and one message with what differs.
#include "pages/wifi/pages.h"

#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/settings.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace cli::wifi {
namespace {

constexpr size_t kValueMax = 126; // what a row of a table keeps

struct Arguments {
    std::string subject, instance;
    std::vector<std::string> words;
    bool storeOnly = false, dryRun = false, force = false, ui = false;
};

class Message {
  public:
    // Begun here, so that "stored only" holds for a single object too.
    Message() { faltocal_create_msg(&header_, "set"); }
    Message(const Message &) = delete;
    Message &operator=(const Message &) = delete;
    ~Message() { faltocal_finalize(&header_); }

    void send(WifiParamTable &changes, bool storeOnly) {
        ask([&] { return faltocal_fromDB(&header_, &changes, 0, storeOnly ? 1 : 0); }, {"the changes can not be sent"});
    }

  private:
    MsgHeader header_{};
};

std::string namesOf(const WifiParamTable &table) {
    std::string names;
    for (const WifiParamRow &row : rows(table)) {
        names += (names.empty() ? "" : ", ") + text(row.parameter);
    }
    return names;
}

// A name stands once in a snapshot. Also by its path, whole or as `wifi ssid` and `wifi radio` show it.
const WifiParamRow &rowNamed(const WifiParamTable &current, const std::string &name) {
    const auto found = std::find_if(rows(current).begin(), rows(current).end(), [&](const WifiParamRow &row) {
        const std::string path = text(row.object) + "." + text(row.parameter);
        return text(row.parameter) == name || path == name || path == "Device.WiFi." + name;
    });
    if (found == rows(current).end()) {
        throw Failure(Exit::Absent, "no setting \"" + name + "\" here; there are " + namesOf(current));
    }
    return *found;
}

// Other spellings of a flag or a number as the layer writes them, so that they compare equal.
std::string normalized(const WifiParamRow &row, const std::string &value) {
    const Json now = typed(text(row.parameter), text(row.value));
    if (now.is_boolean()) {
        std::string lower = value;
        std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return tolower(c); });
        return lower == "1" || lower == "true" ? "true" : lower == "0" || lower == "false" ? "false" : value;
    }
    const size_t sign = value.starts_with('+') ? 1 : 0;
    const bool digits = value.size() > sign && value.find_first_not_of("0123456789", sign) == std::string::npos;
    if (!now.is_number() || !digits) {
        return value;
    }
    return value.substr(std::min(value.find_first_not_of('0', sign), value.size() - 1));
}

// The words of the command line with the objects that hold them.
Settings requested(const Arguments &arguments, const std::vector<Parameter> &wanted, const WifiParamTable &current) {
    auto table = std::make_unique<WifiParamTable>();
    for (const Parameter &parameter : wanted) {
        const WifiParamRow &row = rowNamed(current, parameter.name);
        if (std::any_of(rows(*table).begin(), rows(*table).end(),
                        [&](const WifiParamRow &one) { return text(one.parameter) == text(row.parameter); })) {
            throw Usage(text(row.parameter) + " is given twice");
        }
        const std::string given = arguments.ui ? fapiWord(text(row.parameter), parameter.value) : parameter.value;
        const std::string value = normalized(row, given);
        if (SetParam(table.get(), row.object, row.parameter, value.c_str()) != 0) {
            throw Usage("too many settings: the most is 100");
        }
    }
    return table;
}

std::vector<Parameter> assignments(const std::vector<std::string> &words) {
    std::vector<Parameter> result;
    for (const std::string &word : words) {
        const Parameter &parameter = result.emplace_back(assignment(word));
        if (parameter.value.size() > kValueMax) {
            throw Usage(parameter.name + ": the value has " + std::to_string(parameter.value.size()) +
                        " bytes: the most is " + std::to_string(kValueMax));
        }
    }
    return result;
}

Settings differences(WifiParamTable &current, const WifiParamTable &wanted, bool force) {
    auto changes = std::make_unique<WifiParamTable>();
    for (const WifiParamRow &row : rows(wanted)) {
        ComparOrSetParam(&current, changes.get(), row.object, row.parameter, row.value, force ? 1 : 0);
    }
    return changes;
}

// A channel is not taken up while the radio chooses its own.
void noteChannel(WifiParamTable &changes, WifiParamTable &current, std::vector<std::string> &notes) {
    for (const WifiParamRow &row : rows(changes)) {
        if (text(row.parameter) == "Channel" &&
            CheckGetReqDbAndCurDb(&changes, &current, row.object, "AutoChannelEnable", "true") == 0) {
            notes.emplace_back("AutoChannelEnable is true: the radio chooses its channel itself");
        }
    }
}

// What the layer made of the values that it took.
void noteReadBack(WifiParamTable &now, const WifiParamTable &changes, std::vector<std::string> &notes) {
    for (const WifiParamRow &row : rows(changes)) {
        if (CheckGetParam(&now, row.object, row.parameter, row.value) != 0) {
            notes.push_back(text(row.object) + "." + text(row.parameter) + " does not read back as \"" +
                            text(row.value) + "\"");
        }
    }
}

void addChanges(Report &result, const WifiParamTable &current, const WifiParamTable &changes) {
    for (const WifiParamRow &row : rows(changes)) {
        const std::string name = text(row.parameter);
        const std::string from = text(rowNamed(current, name).value);
        const std::string to = text(row.value);
        Json change = Json::object();
        put(change, "object", text(row.object));
        put(change, "parameter", name);
        put(change, "from", typed(name, from));
        put(change, "to", typed(name, to));
        result.json["changes"].push_back(change);
        result.table.rows.push_back(
            {{text(row.object) + "." + name}, {from.empty() ? "-" : from}, {"->"}, {to.empty() ? "-" : to}});
    }
}

Settings readBack(Subject subject, int instance) {
    try {
        return snapshot(subject, instance);
    } catch (const Failure &failure) {
        throw Failure(Exit::Failed, std::string("written, but could not be read back: ") + failure.what(),
                      failure.object(), failure.code());
    }
}

Report run(const Arguments &arguments) {
    const Subject subject = subjectOf(arguments.subject);
    const int instance = checkedInstance(arguments.instance, subject == Subject::Ssid ? "SSID" : "radio");
    const std::vector<Parameter> words = assignments(arguments.words);
    const Settings current = snapshot(subject, instance);
    const Settings wanted = requested(arguments, words, *current);
    const Settings changes = differences(*current, *wanted, arguments.force || arguments.storeOnly);
    const bool writes = changes->count > 0 && !arguments.dryRun;

    Report result{
        {{"changes", Json::array()}, {"written", writes}, {"applied", writes && !arguments.storeOnly}}, {}, {}, {}};
    if (writes) {
        Message().send(*changes, arguments.storeOnly);
    }
    addChanges(result, *current, *changes);
    noteChannel(*changes, *current, result.notes);
    if (writes && !arguments.storeOnly) {
        noteReadBack(*readBack(subject, instance), *changes, result.notes);
    }
    if (changes->count == 0) {
        result.notes.emplace_back(
            "nothing to change: these are the values in force (--force writes them all the same)");
    } else if (arguments.dryRun) {
        result.notes.emplace_back("dry run: nothing written; whether the gateway takes it was not asked");
    } else if (arguments.storeOnly) {
        result.notes.emplace_back("stored: in force after the next start");
    }
    return result;
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArgument(command, "SUBJECT", arguments->subject, "ssid or radio");
    addArgument(command, "NUMBER", arguments->instance, "Its instance number");
    addArguments(command, "SETTING", arguments->words, "NAME=VALUE...",
                 "New values, named as `wifi ssid` and `wifi "
                 "radio` show them");
    addFlag(command, "--ui", arguments->ui, "The values are in the user interface's words");
    addFlag(command, "--dry-run", arguments->dryRun,
            "Only tell what would be written; the gateway is not asked whether it takes the values");
    addFlag(command, "--db-only", arguments->storeOnly,
            "Store all that is given without applying: in force after the next start");
    addFlag(command, "--force", arguments->force, "Write values that are the same as well");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kSetVerb = {"set", "Change settings of an SSID or a radio, writing only what differs",
                       "ssid 1 SSID=attic SSIDAdvertisementEnabled=true\n"
                       "radio 1 --ui OperatingChannelBandwidth=40 ExtensionChannel=upper --dry-run\n"
                       "radio 2 Channel=44 --db-only",
                       define};

} // namespace cli::wifi
