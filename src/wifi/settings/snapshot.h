// SPDX-License-Identifier: MIT
// Snapshots of what the configuration layer holds for an SSID or a radio: which objects are asked, and which of their
// parameters are kept.
//
// All texts stand inline: tables without pointers need no relocation and stay in shared read-only pages.
#pragma once

#include "caltofal.h"
#include "wifi/object_path.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wifi {

// What a snapshot does with a parameter.
enum class Use : uint8_t {
    AskAndKeep,
    Ask,  // ask for it and drop the answer
    Keep, // comes without being named
};

struct Setting {
    const char *name;
    Use use;
};

// Which instance number an object path gets.
enum class Instance : uint8_t { Own, AccessPoint };

// One object of the request. It asks for the next `count` settings of its snapshot; with 0, for all that it has.
struct Step {
    char rest[22];
    Table table;
    Instance instance;
    uint8_t count;
};

inline constexpr size_t kMostSettings = 29;
inline constexpr size_t kMostSteps = 4;
inline constexpr size_t kLongestName = 32;

// Kept settings by the length of their names: those of n characters are order[first[n]] up to order[first[n + 1]]. With
// a search through all of them, the radio snapshot would cost 1.77 times its floor, where its limit is 1.25.
struct NameIndex {
    uint8_t first[kLongestName + 2];
    uint8_t order[kMostSettings];
};

// Made from settings at compile time.
struct Snapshot {
    uint8_t stepCount;
    Step steps[kMostSteps];
    char names[496];                // one behind the other, each terminated
    uint16_t nameAt[kMostSettings]; // where each setting's begins
    NameIndex index;
};

extern const Snapshot kSsidSnapshot;
extern const Snapshot kRadioSnapshot;

// A parameter's name as the snapshot holds it; without data when the parameter is not kept.
std::string_view findKept(const Snapshot &snapshot, const char *name);

// Appends the parameters of an answer that the snapshot keeps; what the table has no room for is lost.
void keepSettings(const Snapshot &snapshot, const MsgHeader &answer, WifiParamTable *table);

} // namespace wifi
