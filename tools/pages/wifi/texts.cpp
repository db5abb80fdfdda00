// SPDX-License-Identifier: MIT
// `wifi escape`, `wifi hex` and `wifi clear-confs`: small services of the library.
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace pages::wifi {
namespace {

Report resultOf(const std::string &given, const std::string &made) {
    return {.json = Value::object({{"text", given}, {"result", made}}), .raw = made + "\n"};
}

} // namespace

Report escaped(const std::string &given) {
    std::vector<char> escaped(4 * given.size() + 1);
    ConvSpecialChar_forUciCli(given.c_str(), escaped.data());
    return resultOf(given, escaped.data());
}

Report toHex(const std::string &given) {
    std::vector<char> digits(2 * given.size() + 1);
    ConvCharStrToHexDec(given.data(), static_cast<int>(given.size()), digits.data());
    return resultOf(given, digits.data());
}

Report fromHex(const std::string &given) {
    const bool valid = given.size() % 2 == 0 &&
                       std::all_of(given.begin(), given.end(), [](unsigned char c) { return isxdigit(c) != 0; });
    if (!valid) {
        throw Usage(inQuotes(given) + " is not a row of pairs of hexadecimal digits");
    }
    std::vector<char> bytes(given.size() / 2 + 1);
    ConvHexDecToCharStr(given.c_str(), bytes.data());
    return resultOf(given, {bytes.data(), given.size() / 2});
}

Report clearConfs() {
    ShellOutput output;
    Remove_Confs_File();
    if (const std::string complaint = output.end(); !complaint.empty()) {
        failOfShell("the generated configuration cannot be cleared", complaint);
    }
    return {.json = Value::object({{"cleared", "/opt/lantiq/wave/confs"}})};
}

} // namespace pages::wifi
