// SPDX-License-Identifier: MIT
#include "pages/capture/device.h"

#include "pages/capture/line.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/process/shell_output.h"
#include "pages/secret.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <sys/wait.h>

namespace pages::capture {
namespace {

namespace fs = std::filesystem;

constexpr const char *kDriver = "/proc/net/mtlk";
constexpr const char *kConfigurations = "/opt/lantiq/wave/confs";
constexpr const char *kWorkFiles = "/tmp/wlan_wave";
constexpr const char *kAddresses = "/opt/lantiq/etc/nextmac.conf";
constexpr const char *kSatellites = "gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave";
constexpr const char *kFindAddress = "/opt/meshgrove/scripts/find_mac_to_ip.sh ";
constexpr std::uintmax_t kLargest = 1 << 20; // what is larger is no file of these
constexpr int kNoTool = 127;                 // the shell's code

// Names in the driver's configuration, beside those of parameters.
constexpr std::string_view kSecretSettings[] = {"wpa_passphrase", "wpa_psk", "sae_password",
                                                "auth_server_shared_secret", "acct_server_shared_secret"};

bool isSecretSetting(std::string_view name) {
    return isSecretName(name) || name.starts_with("wep_key") ||
           std::find(std::begin(kSecretSettings), std::end(kSecretSettings), name) != std::end(kSecretSettings);
}

std::string withoutSecrets(const std::string &text) {
    std::string result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const size_t equals = line.find('=');
        const bool secret = equals != std::string::npos && isSecretSetting(line.substr(0, equals));
        result += (secret ? line.substr(0, equals + 1) + std::string(kHidden) : withoutUrlPasswords(line)) + "\n";
    }
    return text.ends_with('\n') || result.empty() ? result : result.substr(0, result.size() - 1);
}

class Recorder {
  public:
    explicit Recorder(bool secrets) : secrets_(secrets) {}

    void file(const fs::path &path) {
        std::error_code error;
        if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > kLargest) {
            return;
        }
        std::ifstream in(path, std::ios::binary);
        std::string text(std::istreambuf_iterator<char>(in), {});
        if (text.find('\0') != std::string::npos) {
            return;
        }
        result.lines += fileLine(path.string(), secrets_ ? text : withoutSecrets(text));
        ++result.files;
    }

    // Of a directory and those below it, by name. Files that are hidden are somebody's drafts.
    void files(const fs::path &directory) {
        std::error_code error;
        std::set<fs::path> entries;
        for (const fs::directory_entry &entry : fs::directory_iterator(directory, error)) {
            if (!entry.path().filename().string().starts_with('.')) {
                entries.insert(entry.path());
            }
        }
        for (const fs::path &entry : entries) {
            fs::is_directory(entry, error) ? files(entry) : file(entry);
        }
    }

    // The output, which is recorded with the exit code unless there is no such tool.
    std::string answer(const std::string &command) {
        std::string output;
        FILE *stream = popen(command.c_str(), "r");
        if (!stream) {
            return output;
        }
        std::array<char, 4096> block;
        for (size_t got = 0; (got = fread(block.data(), 1, block.size(), stream)) > 0;) {
            output.append(block.data(), got);
        }
        const int status = pclose(stream);
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : kNoTool;
        if (code != kNoTool && output.find('\0') == std::string::npos) {
            result.lines += answerLine(command, code, output);
            ++result.answers;
        }
        return output;
    }

    Recordings result;

  private:
    bool secrets_;
};

// The values of a parameter in all objects below one; each once, and none that is empty.
std::set<std::string> valuesBelow(const std::vector<Object> &model, std::string_view table, const char *parameter) {
    std::set<std::string> values;
    for (const Object &object : model) {
        if (object.name.starts_with(table)) {
            values.insert(valueOf(object, parameter));
        }
    }
    values.erase("");
    return values;
}

std::set<std::string> interfacesOf(const std::vector<Object> &model) {
    std::set<std::string> names = valuesBelow(model, "Device.WiFi.SSID.", "Name");
    std::error_code error;
    for (const fs::directory_entry &entry : fs::directory_iterator(kDriver, error)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

// "wiphy 2" in an answer of `iw dev`.
std::string phyOf(const std::string &answer) {
    const std::string word = "wiphy ";
    const size_t at = answer.find(word);
    const size_t start = at == std::string::npos ? answer.size() : at + word.size();
    return answer.substr(start, answer.find_first_not_of("0123456789", start) - start);
}

void recordInterfaces(Recorder &recorder, const std::vector<Object> &model) {
    std::set<std::string> phys;
    for (const std::string &name : interfacesOf(model)) {
        try {
            const InterfaceName interface(name); // what could not stand in a shell is nobody's interface
            phys.insert(phyOf(recorder.answer("iw dev " + interface.text() + " info")));
            recorder.answer("iwlist " + interface.text() + " channel");
        } catch (const Usage &) {
            continue;
        }
    }
    phys.erase("");
    for (const std::string &phy : phys) {
        recorder.answer("iw phy phy" + phy + " show_channel");
    }
}

void recordAddresses(Recorder &recorder, const std::vector<Object> &model) {
    std::set<std::string> addresses = valuesBelow(model, "Device.Hosts.Host.", "PhysAddress");
    addresses.merge(valuesBelow(model, "Device.WiFi.X_ZINTU_RoamingMesh.", "PhysAddress"));
    for (const std::string &address : addresses) {
        try {
            std::string mac = checkedMac(address); // in small letters, so that one recording serves any spelling
            std::transform(mac.begin(), mac.end(), mac.begin(), [](unsigned char c) { return std::tolower(c); });
            recorder.answer(kFindAddress + mac);
        } catch (const Usage &) {
            continue;
        }
    }
}

} // namespace

Recordings recordDevice(const std::vector<Object> &model, bool secrets) {
    const DeviceTurn turn;
    const ShellOutput complaints;
    Recorder recorder(secrets);
    recorder.files(kDriver);
    recorder.file(kAddresses);
    recorder.files(kConfigurations);
    recorder.files(kWorkFiles);
    recordInterfaces(recorder, model);
    recorder.answer(kSatellites);
    recordAddresses(recorder, model);
    return std::move(recorder.result);
}

} // namespace pages::capture
