// SPDX-License-Identifier: MIT
// `wifi escape`, `wifi hex` and `wifi clear-confs`: small services of the library.
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/failure.h"
#include "pages/objects/words.h"
#include "pages/process/shell_output.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <vector>

namespace cli::wifi {
namespace {

struct HexArguments {
    std::string text;
    bool decode = false;
};

Report resultOf(const std::string &given, const std::string &made) {
    Report result{Json::object(), {}, made + "\n", {}};
    put(result.json, "text", given);
    put(result.json, "result", made);
    return result;
}

Report escape(const std::string &given) {
    std::vector<char> escaped(4 * given.size() + 1);
    ConvSpecialChar_forUciCli(given.c_str(), escaped.data());
    return resultOf(given, escaped.data());
}

Report hex(const HexArguments &arguments) {
    const std::string &given = arguments.text;
    if (!arguments.decode) {
        std::vector<char> digits(2 * given.size() + 1);
        ConvCharStrToHexDec(given.data(), static_cast<int>(given.size()), digits.data());
        return resultOf(given, digits.data());
    }
    const bool valid = given.size() % 2 == 0 &&
                       std::all_of(given.begin(), given.end(), [](unsigned char c) { return isxdigit(c) != 0; });
    if (!valid) {
        throw Usage("\"" + given.substr(0, 40) + "\" is no row of pairs of hexadecimal digits");
    }
    std::vector<char> bytes(given.size() / 2 + 1);
    ConvHexDecToCharStr(given.c_str(), bytes.data());
    return resultOf(given, {bytes.data(), given.size() / 2});
}

Report clearConfs() {
    needDevice();
    ShellOutput output;
    Remove_Confs_File();
    if (const std::string complaint = output.end(); !complaint.empty()) {
        failOfShell("the generated configuration can not be cleared", complaint);
    }
    return {{{"cleared", "/opt/lantiq/wave/confs"}}, {}, {}, {}};
}

Run defineEscape(CLI::App &command) {
    const auto given = std::make_shared<std::string>();
    addArgument(command, "TEXT", *given, "Any text");
    return [given] { return escape(*given); };
}

Run defineHex(CLI::App &command) {
    const auto arguments = std::make_shared<HexArguments>();
    addArgument(command, "TEXT", arguments->text, "Any text");
    addFlag(command, "--decode", arguments->decode, "TEXT is hexadecimal: print its bytes");
    return [arguments] { return hex(*arguments); };
}

Run defineClearConfs(CLI::App & /*command*/) {
    return clearConfs;
}

} // namespace

const Noun kEscapeVerb = {"escape", "A text as it stands in a UCI command line of the shell", "O'Brien", defineEscape};

const Noun kHexVerb = {"hex", "The bytes of a text as hexadecimal digits, and back", "VOLA\n564f4c41 --decode",
                       defineHex};

const Noun kClearConfsVerb = {"clear-confs", "Empty the directory of the generated Wi-Fi configuration", "",
                              defineClearConfs};

} // namespace cli::wifi
