// SPDX-License-Identifier: MIT
//
// The words that other programs have for types and access.
#pragma once

#include "value/value_type.h"

#include <optional>
#include <string>
#include <string_view>

namespace sandbox {

// Lower case, without blanks, "_" and "-", so that spellings of a word are one.
std::string plainWord(std::string_view word);

// "xsd:unsignedInt", "uint32", "StatsCounter64" ... and, where `numbers` says so, the numbers of the usual enumeration
// of management agents (0 string, 1 int, 2 unsignedInt, 3 boolean ...). Empty when the word is not known.
std::optional<ValueType> typeOfWord(std::string_view word, bool numbers);

// Whether the word says that the row is an object's, or a table's, which is an object too.
bool isObjectWord(std::string_view word);
bool isTableWord(std::string_view word);

// Whether a value and a type stand in each other's place: the value is a type word of XML Schema, the type is none.
bool areSwapped(std::string_view value, std::string_view type);

// "readWrite", "rw", "true", "1" ...; empty when the word is not known.
std::optional<bool> writableOfWord(std::string_view word);

} // namespace sandbox
