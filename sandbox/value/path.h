// SPDX-License-Identifier: MIT
//
// Object paths and the sort keys made from them.
//
// A path names an object: "Device.Hosts.Host.3" or, the same, "Device.Hosts.Host.3.". Its key has every instance
// number padded to ten digits and always a final dot, "Device.Hosts.Host.0000000003.": keys sort as the model does
// (instances by number), and everything below an object is one range of keys. A pattern is a path with "{i}" in
// place of instance numbers, with a final dot.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

// The longest path without its final dot, and the longest parameter name: what a node's name field can hold.
constexpr size_t kPathMax = 255;

// Stands for every instance number of a table in a pattern.
constexpr std::string_view kAnyInstance = "{i}";

// The key of a path with or without a final dot; empty when the text is not an object path, or is too long.
std::optional<std::string> keyOf(std::string_view path);

// The path of a key, without a final dot.
std::string pathOf(std::string_view key);

// The first key after an object and everything below it.
std::string keyEnd(std::string_view key);

// The key of the object that holds this one; "" for a root.
std::string_view parentKey(std::string_view key);

// The last component of a key: a name, or ten digits.
std::string_view lastComponent(std::string_view key);

// The instance number of a component of a path or key; empty when it is a name.
std::optional<uint32_t> instanceOf(std::string_view component);

// The key of an instance of the table `tableKey`.
std::string instanceKey(std::string_view tableKey, uint32_t instance);

// Whether the text can be a parameter's name, or a component of an object path that is not an instance number: letters,
// digits (not digits alone), "_" and, not in front, "-".
bool isName(std::string_view text);

// The components of a path, key or pattern.
std::vector<std::string_view> components(std::string_view path);

// The pattern that stands for the key: "{i}." for each instance number.
std::string patternOf(std::string_view key);

// Whether the text is a pattern: at least one "{i}", and a final dot.
bool isPattern(std::string_view text);

// What of a text that should be a path a message may show: the characters of paths at its front, where it begins as the
// paths of gateways do. The rest may be a value, and a secret.
std::string_view pathAtFront(std::string_view text);

// Whether `component` of a pattern stands for `actual` of a path or key.
bool componentMatches(std::string_view component, std::string_view actual);

} // namespace sandbox
