// SPDX-License-Identifier: MIT
#include "exchange/dump/words.h"

#include <algorithm>
#include <cctype>

namespace sandbox {
namespace {

struct TypeWord {
    std::string_view word; // a plain word, without the prefix of a name space
    std::string_view type; // "" when values may be anything
};
constexpr TypeWord kTypeWords[] = {
    {"string", ""},
    {"str", ""},
    {"text", ""},
    {"enumeration", ""},
    {"enum", ""},
    {"list", ""},
    {"alias", ""},
    {"url", ""},
    {"uri", ""},
    {"ipaddress", ""},
    {"ipv4address", ""},
    {"ipv6address", ""},
    {"ipprefix", ""},
    {"ipv6prefix", ""},
    {"macaddress", ""},
    {"uuid", ""},
    {"diagnosticsstate", ""},
    {"none", ""},
    {"byte", ""},
    {"boolean", "boolean"},
    {"bool", "boolean"},
    {"int", "int"},
    {"integer", "int"},
    {"int32", "int"},
    {"int16", "int"},
    {"int8", "int"},
    {"short", "int"},
    {"signedint", "int"},
    {"unsignedint", "unsignedInt"},
    {"uint", "unsignedInt"},
    {"uint32", "unsignedInt"},
    {"uint16", "unsignedInt"},
    {"uint8", "unsignedInt"},
    {"unsignedshort", "unsignedInt"},
    {"unsignedbyte", "unsignedInt"},
    {"statscounter32", "unsignedInt"},
    {"counter", "unsignedLong"},
    {"long", "long"},
    {"int64", "long"},
    {"longlong", "long"},
    {"unsignedlong", "unsignedLong"},
    {"ulong", "unsignedLong"},
    {"uint64", "unsignedLong"},
    {"unsignedlonglong", "unsignedLong"},
    {"statscounter64", "unsignedLong"},
    {"decimal", "decimal"},
    {"float", "decimal"},
    {"double", "decimal"},
    {"number", "decimal"},
    {"datetime", "dateTime"},
    {"date", "dateTime"},
    {"time", "dateTime"},
    {"base64", "base64"},
    {"base64binary", "base64"},
    {"hexbinary", "hexBinary"},
    {"hex", "hexBinary"},
    {"octets", "hexBinary"},
};

// By number.
constexpr std::string_view kTypeNumbers[] = {
    "string", "int",          "unsignedInt", "boolean", "dateTime", "base64",
    "long",   "unsignedLong", "decimal",     "decimal", "",         "",
};

constexpr std::string_view kObjectWords[] = {"object", "objectinstance", "instance"};
constexpr std::string_view kTableWords[] = {"table", "multiinstance", "multiobject"};

struct AccessWord {
    std::string_view word;
    bool writable;
};
constexpr AccessWord kAccessWords[] = {
    {"readwrite", true},
    {"rw", true},
    {"w", true},
    {"write", true},
    {"writable", true},
    {"writeonly", true},
    {"wo", true},
    {"true", true},
    {"1", true},
    {"yes", true},
    {"readonly", false},
    {"ro", false},
    {"r", false},
    {"read", false},
    {"false", false},
    {"writeoncereadonly", false},
    {"0", false},
    {"no", false},
    {"notwritable", false},
};

std::optional<ValueType> parsed(std::string_view type) {
    return type.empty() ? ValueType() : ValueType::parse(type);
}

// The word behind "xsd:" or "ccsp_" and the like.
std::string_view withoutPrefix(std::string_view word) {
    const size_t colon = word.rfind(':');
    return colon == std::string_view::npos ? word : word.substr(colon + 1);
}

} // namespace

std::string plainWord(std::string_view word) {
    std::string plain;
    for (const char c : word) {
        if (c != ' ' && c != '_' && c != '-') {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return plain;
}

std::optional<ValueType> typeOfWord(std::string_view word, bool numbers) {
    const std::string plain = plainWord(withoutPrefix(word));
    const bool number = !plain.empty() && plain.find_first_not_of("0123456789") == std::string::npos;
    if (number) {
        const size_t index = plain.size() <= 2 ? std::stoul(plain) : std::size(kTypeNumbers);
        return numbers && index < std::size(kTypeNumbers) ? parsed(kTypeNumbers[index]) : std::nullopt;
    }
    // The longest one: agents put a word of their own in front, "DM_STRING", "typeULong".
    const TypeWord *found = nullptr;
    for (const TypeWord &row : kTypeWords) {
        const bool ending = row.word.size() > 2 && plain.ends_with(row.word);
        found = ending && (!found || row.word.size() > found->word.size()) ? &row : found;
    }
    return found ? parsed(found->type) : std::nullopt;
}

bool isObjectWord(std::string_view word) {
    const std::string plain = plainWord(withoutPrefix(word));
    return isTableWord(word) ||
           std::find(std::begin(kObjectWords), std::end(kObjectWords), plain) != std::end(kObjectWords);
}

bool isTableWord(std::string_view word) {
    const std::string plain = plainWord(withoutPrefix(word));
    return std::find(std::begin(kTableWords), std::end(kTableWords), plain) != std::end(kTableWords);
}

namespace {

bool isSchemaType(std::string_view word) {
    return plainWord(word).starts_with("xsd:") && typeOfWord(word, false);
}

} // namespace

bool areSwapped(std::string_view value, std::string_view type) {
    return isSchemaType(value) && !isSchemaType(type);
}

std::optional<bool> writableOfWord(std::string_view word) {
    const std::string plain = plainWord(word);
    for (const AccessWord &row : kAccessWords) {
        if (row.word == plain) {
            return row.writable;
        }
    }
    return std::nullopt;
}

} // namespace sandbox
