// SPDX-License-Identifier: MIT
// A snapshot of what the gateway holds, a comparison, and one message with what differs.
#include "help/similar.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/text.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/settings.h"

#include <algorithm>
#include <utility>

namespace pages::wifi {
namespace {

constexpr size_t kValueMax = 126; // what a row of a table keeps

class Message {
  public:
    // Begun here, so that "stored only" holds for a single object too.
    Message() { faltocal_create_msg(&header_, "set"); }
    Message(const Message &) = delete;
    Message &operator=(const Message &) = delete;
    ~Message() { faltocal_finalize(&header_); }

    void send(WifiParamTable &changes, bool storeOnly) {
        ask([&] { return faltocal_fromDB(&header_, &changes, 0, storeOnly ? 1 : 0); }, {"the changes cannot be sent"});
    }

  private:
    MsgHeader header_{};
};

std::vector<std::string> namesOf(const WifiParamTable &table) {
    std::vector<std::string> names;
    for (const WifiParamRow &row : rows(table)) {
        names.push_back(text(row.parameter));
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
        const std::string meant = help::didYouMean(name, namesOf(current));
        throw Failure(Category::Absent, "no setting " + inQuotes(name) + " here" +
                                            (meant.empty() ? "; there are " + joined(namesOf(current)) : meant));
    }
    return *found;
}

void checkLength(const Parameter &parameter) {
    if (parameter.value.size() > kValueMax) {
        throw Usage(parameter.name + ": the value has " + std::to_string(parameter.value.size()) +
                    " bytes: the most is " + std::to_string(kValueMax));
    }
}

// What is wanted, with the objects that hold it.
Settings requested(const SettingsChange &change, const WifiParamTable &current) {
    auto table = std::make_unique<WifiParamTable>();
    std::vector<std::string> names;
    for (const Parameter &parameter : change.wanted) {
        const WifiParamRow &row = rowNamed(current, parameter.name);
        refuseHidden(text(row.parameter), parameter.value);
        names.push_back(text(row.parameter));
        refuseTwice(names);
        const std::string given = change.uiWords ? fapiWord(text(row.parameter), parameter.value) : parameter.value;
        const std::string value = spelledLike(typed(text(row.parameter), text(row.value)), given);
        if (SetParam(table.get(), row.object, row.parameter, value.c_str()) != 0) {
            throw Usage("too many settings: the most is 100");
        }
    }
    return table;
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
                            shownText(text(row.parameter), text(row.value)) + "\"");
        }
    }
}

void addChanges(Report &result, const WifiParamTable &current, const WifiParamTable &changes) {
    for (const WifiParamRow &row : rows(changes)) {
        const std::string name = text(row.parameter);
        const std::string from = text(rowNamed(current, name).value);
        const std::string to = text(row.value);
        result.json["changes"].push(Value::object({{"object", text(row.object)},
                                                   {"parameter", name},
                                                   {"from", shownValue(name, from)},
                                                   {"to", shownValue(name, to)}}));
        result.table.rows.push_back({{text(row.object) + "." + name},
                                     {readable(shownText(name, from))},
                                     {"->"},
                                     {readable(shownText(name, to))}});
    }
}

Settings readBack(Subject subject, int instance) {
    try {
        return snapshot(subject, instance);
    } catch (const Failure &failure) {
        throw Failure(Category::Failed, std::string("written, but could not be read back: ") + failure.what(),
                      failure.object(), failure.code());
    }
}

void addNotes(const SettingsChange &change, bool differs, std::vector<std::string> &notes) {
    if (!differs) {
        notes.emplace_back("nothing to change: these are the values in force (--force writes them all the same)");
    } else if (change.dryRun) {
        notes.emplace_back("dry run: nothing written; whether the gateway takes it was not asked");
    } else if (change.storeOnly) {
        notes.emplace_back("stored: in force after the next start");
    }
}

} // namespace

Report changeSettings(const SettingsChange &change) {
    for (const Parameter &parameter : change.wanted) {
        checkLength(parameter);
    }
    const Settings current = snapshot(change.subject, change.instance);
    const Settings wanted = requested(change, *current);
    const Settings changes = differences(*current, *wanted, change.force || change.storeOnly);
    const bool writes = changes->count > 0 && !change.dryRun;
    const bool applies = writes && !change.storeOnly;

    Report result{.json = Value::object({{"changes", Value::list()}, {"written", writes}, {"applied", applies}})};
    if (writes) {
        Message().send(*changes, change.storeOnly);
    }
    addChanges(result, *current, *changes);
    noteChannel(*changes, *current, result.notes);
    if (applies) {
        noteReadBack(*readBack(change.subject, change.instance), *changes, result.notes);
    }
    addNotes(change, changes->count > 0, result.notes);
    return result;
}

} // namespace pages::wifi
