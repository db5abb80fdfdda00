// SPDX-License-Identifier: MIT
#include "pages/wifi/instances.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>

namespace pages::wifi {
namespace {

bool isInstance(const Object &object, const std::string &table) {
    const std::string_view path = withoutDot(object.name);
    return instanceOf(path) != 0 && path.rfind('.') == table.size() && path.starts_with(table);
}

// The same; none where the gateway has no such table, for a reason that may be explained.
std::vector<Object> instancesIfAny(const std::string &table, const std::vector<Parameter> &names,
                                   std::string &explanation) {
    try {
        return instancesOf(table, names);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        const std::string reason = failure.what();
        explanation = reason.substr(explanationIn(reason));
        return {};
    }
}

void require(const std::string &table, const char *what, int number) {
    std::vector<std::string> numbers;
    std::string explanation;
    for (const Object &object : instancesIfAny(table, {}, explanation)) {
        if (instanceOf(object.name) == number) {
            return;
        }
        numbers.push_back(std::to_string(instanceOf(object.name)));
    }
    const std::string wanted = std::string(what) + " " + std::to_string(number);
    throw Failure(Category::Absent,
                  "there is no " + wanted + ": the gateway has " + (numbers.empty() ? "none" : joined(numbers)) +
                      explanation,
                  table + "." + std::to_string(number), CALTOFAL_ABSENT_OBJECT);
}

} // namespace

std::vector<Object> instancesOf(const std::string &table, const std::vector<Parameter> &names) {
    std::vector<Object> instances = get({{table, names}}, Reading::Whole);
    std::erase_if(instances, [&](const Object &object) { return !isInstance(object, table); });
    return instances;
}

std::vector<Object> anyInstancesOf(const std::string &table, const std::vector<Parameter> &names) {
    std::string explanation;
    return instancesIfAny(table, names, explanation);
}

void requireSsid(int ssid) {
    require("Device.WiFi.SSID", "SSID", ssid);
}

void requireRadio(int radio) {
    require("Device.WiFi.Radio", "radio", radio);
}

int accessPointOf(int ssid) {
    return accessPointOf(ssid, anyInstancesOf("Device.WiFi.AccessPoint", {{"SSIDReference"}, {"Enable"}}));
}

int accessPointOf(int ssid, const std::vector<Object> &accessPoints) {
    int sameNumber = 0;
    for (const Object &accessPoint : accessPoints) {
        const int number = instanceOf(accessPoint.name);
        const int referred = instanceOf(valueOf(accessPoint, "SSIDReference"));
        if (referred == ssid) {
            return number;
        }
        if (referred == 0 && number == ssid) {
            sameNumber = number;
        }
    }
    return sameNumber;
}

} // namespace pages::wifi
