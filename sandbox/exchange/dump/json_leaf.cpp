// SPDX-License-Identifier: MIT
#include "exchange/dump/json_leaf.h"

#include "exchange/dump/words.h"
#include "value/escape.h"
#include "value/value_syntax.h"

#include <algorithm>

namespace sandbox {
namespace {

struct RoleWord {
    std::string_view word;
    Role role;
};
constexpr RoleWord kRoles[] = {
    {"name", Role::Name},
    {"path", Role::Name},
    {"parameter", Role::Name},
    {"param", Role::Name},
    {"parametername", Role::Name},
    {"parameterpath", Role::Name},
    {"resolvedpath", Role::Name},
    {"fullpath", Role::Name},
    {"fullname", Role::Name},
    {"key", Role::Name},
    {"value", Role::Value},
    {"parametervalue", Role::Value},
    {"currentvalue", Role::Value},
    {"val", Role::Value},
    {"type", Role::Type},
    {"datatype", Role::Type},
    {"valuetype", Role::Type},
    {"parametertype", Role::Type},
    {"access", Role::Access},
    {"writable", Role::Access},
    {"permission", Role::Access},
    {"permissions", Role::Access},
    {"object", Role::Object},
    {"parameters", Role::Contents},
    {"params", Role::Contents},
    {"resultparams", Role::Contents},
    {"parameterlist", Role::Contents},
    {"values", Role::Contents},
    {"children", Role::Contents},
    {"objects", Role::Contents},
    {"instance", Role::Instance},
    {"instancenumber", Role::Instance},
};

bool isXsd(const JsonNode &node) {
    return node.kind == JsonNode::Kind::Text && plainWord(node.text).starts_with("xsd:");
}

// A value with its type behind it.
bool isTypedPair(const JsonNode &node) {
    return node.kind == JsonNode::Kind::Array && node.children.size() == 2 && isXsd(node.children[1].node);
}

// What a database's export wraps in its own types: {"$date": ...}, {"$numberLong": ...}.
const JsonNode &unwrapped(const JsonNode &node) {
    const bool wrapper =
        node.kind == JsonNode::Kind::Object && node.children.size() == 1 && node.children[0].name.starts_with('$');
    return wrapper ? unwrapped(node.children[0].node) : node;
}

void readScalar(const JsonNode &node, DumpRow &row) {
    if (node.kind == JsonNode::Kind::Null) {
        return;
    }
    row.value = node.text;
    row.form = node.kind == JsonNode::Kind::Flag     ? DumpRow::Form::Flag
               : node.kind == JsonNode::Kind::Number ? DumpRow::Form::Number
                                                     : DumpRow::Form::Text;
}

void readValue(const JsonNode &wrapper, DumpRow &row) {
    const JsonNode &node = unwrapped(wrapper);
    if (isTypedPair(node)) {
        readScalar(node.children[0].node, row);
        row.type = node.children[1].node.text;
    } else if (node.kind == JsonNode::Kind::Array) {
        row.value = joinedItems(node);
    } else if (node.isScalar()) {
        readScalar(node, row);
    } else {
        readLeaf(node, row);
    }
}

// An access may be a flag, a word, or a flag in a list of one.
std::optional<bool> accessOf(const JsonNode &node) {
    const bool list = node.kind == JsonNode::Kind::Array && !node.children.empty();
    return writableOfWord(list ? node.children[0].node.text : node.text);
}

} // namespace

Role roleOf(std::string_view member) {
    const size_t letter = member.find_first_not_of('_');
    if (letter == std::string_view::npos || (member[letter] >= 'A' && member[letter] <= 'Z')) {
        return Role::None;
    }
    const std::string word = plainWord(member);
    for (const RoleWord &row : kRoles) {
        if (row.word == word) {
            return row.role;
        }
    }
    return Role::None;
}

const JsonNode *memberOf(const JsonNode &node, Role role) {
    for (const auto &[name, child] : node.children) {
        if (roleOf(name) == role) {
            return &child;
        }
    }
    return nullptr;
}

bool isLeaf(const JsonNode &node) {
    if (node.kind != JsonNode::Kind::Object) {
        return false;
    }
    if (node.children.size() == 1 && node.children[0].name == "hex") {
        return true;
    }
    const JsonNode *value = memberOf(node, Role::Value);
    return value && (unwrapped(*value).isScalar() || value->kind == JsonNode::Kind::Array);
}

void readLeaf(const JsonNode &node, DumpRow &row) {
    if (node.isScalar()) {
        readScalar(node, row);
        return;
    }
    if (const JsonNode *hex = node.member("hex"); hex && isHexBinary(hex->text)) {
        row.value = bytesOfHex(hex->text);
    }
    if (const JsonNode *type = memberOf(node, Role::Type); type && type->isScalar()) {
        row.type = type->kind == JsonNode::Kind::Null ? "" : type->text;
    }
    if (const JsonNode *access = memberOf(node, Role::Access)) {
        row.writable = accessOf(*access);
    }
    if (const JsonNode *value = memberOf(node, Role::Value)) {
        readValue(*value, row);
    }
}

std::string joinedItems(const JsonNode &array) {
    std::string text;
    for (const auto &[name, item] : array.children) {
        text += (text.empty() ? "" : ",") + item.text;
    }
    return text;
}

} // namespace sandbox
