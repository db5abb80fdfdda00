// SPDX-License-Identifier: MIT
#include "pages/capture/device.h"
#include "pages/capture/line.h"
#include "pages/capture/pages.h"
#include "pages/failure.h"
#include "pages/layer/definition.h"
#include "pages/objects/pages.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>

namespace pages::capture {
namespace {

constexpr const char *kHead =
    "# What a gateway held; caltofal-sandbox import takes it, caltofal apply writes it back.\n"
    "@capture\n";
constexpr const char *kRoot = "Device.";
constexpr const char *kOlderRoot = "InternetGatewayDevice.";

// A gateway without Device. objects is of the older model.
std::vector<Object> readModel(const std::vector<std::string> &paths) {
    std::vector<Object> asked;
    asked.reserve(paths.size());
    for (const std::string &path : paths) {
        asked.push_back({path});
    }
    if (!asked.empty()) {
        return objects::readWhole(asked);
    }
    try {
        return get({{kRoot}}, Reading::Whole);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        return get({{kOlderRoot}}, Reading::Whole);
    }
}

// Keys in hexadecimal digits stay such, so that they fit their type.
std::string replacedSecret(const std::string &value) {
    if (value.empty()) {
        return value;
    }
    const bool digits = value.size() > 8 &&
                        std::all_of(value.begin(), value.end(), [](unsigned char c) { return std::isxdigit(c) != 0; });
    return digits ? std::string(value.size(), '0') : std::string(kHidden);
}

// The default of a secret is one as well.
std::string withoutDefault(const std::string &definition) {
    return definition.substr(0, definition.find(" default="));
}

} // namespace

Report take(const Wanted &wanted) {
    const std::vector<Object> model = readModel(wanted.objects);
    Report result;
    result.raw = kHead;
    size_t values = 0;
    size_t replaced = 0;
    for (const Object &object : model) {
        const std::string path = std::string(withoutDot(object.name)) + ".";
        result.raw += object.parameters.empty() ? path + "\n" : "";
        for (const Parameter &parameter : object.parameters) {
            const bool secret = !wanted.secrets && isSecret(parameter.name);
            const std::string definition = definitionOf(path + parameter.name);
            result.raw += parameterLine({path, parameter.name, secret ? withoutDefault(definition) : definition,
                                         secret ? replacedSecret(parameter.value) : parameter.value});
            ++values;
            replaced += secret && !parameter.value.empty() ? 1 : 0;
        }
    }
    Recordings recordings;
    if (wanted.driver) {
        recordings = recordDevice(model, wanted.secrets);
        result.raw += recordings.lines;
    }
    result.json = Value::object({{"values", values},
                                 {"secrets_replaced", replaced},
                                 {"files", recordings.files},
                                 {"answers", recordings.answers},
                                 {"capture", result.raw}});
    std::string note = "captured " + std::to_string(values) + " values";
    note += wanted.driver ? ", " + std::to_string(recordings.files) + " files and " +
                                std::to_string(recordings.answers) + " answers of tools"
                          : "";
    note += replaced != 0 ? "; secrets replaced: " + std::to_string(replaced) : "";
    result.notes.push_back(note);
    return result;
}

} // namespace pages::capture
