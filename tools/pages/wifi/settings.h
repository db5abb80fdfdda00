// SPDX-License-Identifier: MIT
// The library's snapshots: the settings of one SSID or one radio, as rows.
#pragma once

#include "caltofal.h"
#include "pages/text.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace pages::wifi {

enum class Subject { Ssid, Radio };

// "ssid" or "radio". Throws Usage.
Subject subjectOf(const std::string &word);

// A table is too large for the stack of a small device.
using Settings = std::unique_ptr<WifiParamTable>;

struct MissingSetting {
    std::string object;
    std::string name;
};

struct Snapshot {
    Settings held;                            // what the gateway holds
    std::vector<MissingSetting> missing = {}; // what the library keeps of other gateways and this one does not have
};

// The settings of an SSID or a radio. Throws Failure.
Snapshot wholeSnapshot(Subject subject, int instance);
Settings snapshot(Subject subject, int instance);

inline std::span<const WifiParamRow> rows(const WifiParamTable &table) {
    return {table.rows, static_cast<size_t>(table.count)};
}

// A parameter's value in the words of the user interface, and back; unchanged where both are the same.
// fapiWord() throws Failure for a word that the user interface has not.
std::string uiWord(const std::string &parameter, const std::string &value);
std::string fapiWord(const std::string &parameter, const std::string &value);

} // namespace pages::wifi
