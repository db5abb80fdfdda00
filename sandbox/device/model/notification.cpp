// SPDX-License-Identifier: MIT
#include "device/model/notification.h"

#include "exchange/json_tree.h"
#include "value/entry.h"
#include "value/value_syntax.h"

namespace device {
namespace {

using sandbox::JsonNode;

// An SSID may hold any bytes, the parser takes UTF-8 only: bytes beyond ASCII pass it as characters U+E080 to U+E0FF
// of the private area, three bytes each.
constexpr char kLead = '\xEE';

std::string shield(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += c;
        } else {
            text += kLead;
            text += static_cast<char>(0x80 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

std::string unshield(const std::string &text) {
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        const auto second = i + 2 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        if (text[i] == kLead && (second == 0x82 || second == 0x83)) {
            bytes += static_cast<char>(((second & 0x03) << 6) | (static_cast<unsigned char>(text[i + 2]) & 0x3F));
            i += 2;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

bool takeId(const JsonNode &object, Notification &notification) {
    for (const char *key : {"notify_id", "nid"}) {
        const JsonNode *id = object.member(key);
        if (id && id->kind == JsonNode::Kind::Number && sandbox::isInteger(id->text)) {
            notification.idKey = key;
            notification.id = id->text;
            return true;
        }
    }
    return false;
}

// The pairs "pnI"/"pvI" from 1 on, without gaps.
bool takePairs(const JsonNode &object, Notification &notification) {
    for (int i = 1;; ++i) {
        const JsonNode *name = object.member("pn" + std::to_string(i));
        const JsonNode *value = object.member("pv" + std::to_string(i));
        if (!name && !value) {
            return true;
        }
        if (!name || !value || name->kind != JsonNode::Kind::Text || value->kind != JsonNode::Kind::Text) {
            return false;
        }
        notification.named[unshield(name->text)] = unshield(value->text);
    }
}

} // namespace

std::optional<Notification> parseNotification(std::string_view json) {
    try {
        const std::vector<JsonNode> values = sandbox::parseStrictJson(shield(json), "the notification");
        Notification notification;
        if (values.size() == 1 && values[0].kind == JsonNode::Kind::Object && takeId(values[0], notification) &&
            takePairs(values[0], notification)) {
            return notification;
        }
    } catch (const sandbox::FileError &) {
        // What the daemon cannot read it passes over.
    }
    return std::nullopt;
}

} // namespace device
