// SPDX-License-Identifier: MIT
#include "device/model/notification.h"

#include <nlohmann/json.hpp>

namespace device {
namespace {

using Json = nlohmann::json;

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

bool takeId(const Json &object, Notification &notification) {
    for (const char *key : {"notify_id", "nid"}) {
        if (const auto found = object.find(key); found != object.end() && found->is_number_integer()) {
            notification.idKey = key;
            notification.id = found->dump();
            return true;
        }
    }
    return false;
}

// The pairs "pnI"/"pvI" from 1 on, without gaps.
bool takePairs(const Json &object, Notification &notification) {
    for (int i = 1;; ++i) {
        const auto name = object.find("pn" + std::to_string(i));
        const auto value = object.find("pv" + std::to_string(i));
        if (name == object.end() && value == object.end()) {
            return true;
        }
        if (name == object.end() || value == object.end() || !name->is_string() || !value->is_string()) {
            return false;
        }
        notification.named[unshield(name->get<std::string>())] = unshield(value->get<std::string>());
    }
}

} // namespace

std::optional<Notification> parseNotification(std::string_view json) {
    const Json object = Json::parse(shield(json), nullptr, false);
    Notification notification;
    if (!object.is_object() || !takeId(object, notification) || !takePairs(object, notification)) {
        return std::nullopt;
    }
    return notification;
}

} // namespace device
