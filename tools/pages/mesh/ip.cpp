// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/mesh/pages.h"
#include "pages/process/shell_output.h"
#include "pages/text.h"

#include <cstdio>

namespace pages::mesh {
namespace {

constexpr size_t kBufferSize = 128;

} // namespace

Report ip(const std::string &mac) {
    char buffer[kBufferSize] = "";
    snprintf(buffer, sizeof(buffer), "%s", mac.c_str());
    ShellOutput output;
    ZINTU_meshgrove_get_IP_from_MAC(buffer);
    const std::string complaint = output.end();
    const std::string ip = text(buffer);
    if (ip.empty() && !complaint.empty()) {
        failOfShell("the mesh does not tell the address of " + mac, complaint);
    }
    if (ip.empty()) {
        throw Failure(Category::Absent, mac + ": no satellite and no host has that MAC address");
    }
    if (zintu_isValidIPv4Address(ip.c_str()) != 0) {
        throw Failure(Category::Failed, "the mesh names \"" + ip + "\", which is not an IP address");
    }
    return {.json = Value::object({{"mac", mac}, {"ip", ip}}), .raw = ip + "\n"};
}

} // namespace pages::mesh
