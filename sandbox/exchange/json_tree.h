// SPDX-License-Identifier: MIT
//
// JSON as a tree that keeps what a data model's dump needs: the order of members, members given twice, the text of
// numbers, and lines. json_tree.cpp alone sees the large header of the JSON library.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

struct JsonMember;

struct JsonNode {
    enum class Kind { Null, Flag, Number, Text, Object, Array };

    Kind kind = Kind::Null;
    size_t line = 0;
    std::string text;                 // of a flag, number or text
    std::vector<JsonMember> children; // an array's have no names

    bool isScalar() const { return kind != Kind::Object && kind != Kind::Array; }
    // The last member of that name, as the last one holds; NULL for none.
    const JsonNode *member(std::string_view name) const;
};

struct JsonMember {
    std::string name;
    JsonNode node;
};

// One value after another, as in JSON Lines; usually a single one. Text that other programs get wrong is read as it
// was meant: bytes that are not UTF-8 and control characters in texts stay as they are, and so do unknown escapes;
// commas before a closing bracket are passed over, NaN and Infinity are numbers. Throws FileError.
std::vector<JsonNode> parseJson(std::string_view text, const std::string &file);
// Likewise, but what is not JSON to the letter is an error.
std::vector<JsonNode> parseStrictJson(std::string_view text, const std::string &file);

// A text as it stands in JSON, quoted. It must be UTF-8.
std::string quotedJson(const std::string &text);
// Whether the text stands in JSON as a number that is read back as it is written.
bool isJsonNumber(const std::string &text);

} // namespace sandbox
