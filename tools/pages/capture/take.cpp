// SPDX-License-Identifier: MIT
#include "pages/capture/device.h"
#include "pages/capture/line.h"
#include "pages/capture/pages.h"
#include "pages/failure.h"
#include "pages/layer/definition.h"
#include "pages/objects/pages.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <set>

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

// The default of a secret is one as well.
std::string withoutSecrets(const std::string &parameter, const std::string &definition) {
    return isSecretName(parameter) ? definition.substr(0, definition.find(" default="))
                                   : withoutUrlPasswords(definition);
}

std::string counted(size_t number, const std::string &what) {
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

} // namespace

Report take(const Wanted &wanted) {
    const std::vector<Object> model = readModel(wanted.objects);
    Report result;
    result.raw = kHead;
    std::set<std::string> told; // objects that were asked for may overlap, and no path stands in a file twice
    size_t values = 0;
    size_t replaced = 0;
    for (const Object &object : model) {
        const std::string path = std::string(withoutDot(object.name)) + ".";
        if (object.parameters.empty() && told.insert(path).second) {
            result.raw += path + "\n";
        }
        for (const Parameter &parameter : object.parameters) {
            if (!told.insert(path + parameter.name).second) {
                continue;
            }
            const std::string definition = definitionOf(path + parameter.name);
            const std::string value = wanted.secrets ? parameter.value : hiddenText(parameter.name, parameter.value);
            result.raw +=
                parameterLine({path, parameter.name,
                               wanted.secrets ? definition : withoutSecrets(parameter.name, definition), value});
            ++values;
            replaced += value != parameter.value ? 1 : 0;
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
    std::string note = "captured " + counted(values, "value");
    note += wanted.driver ? ", " + counted(recordings.files, "file") + " and " + counted(recordings.answers, "answer") +
                                " of tools"
                          : "";
    note += replaced != 0 ? "; secrets replaced: " + std::to_string(replaced) : "";
    result.notes.push_back(note);
    return result;
}

} // namespace pages::capture
