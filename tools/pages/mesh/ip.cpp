// SPDX-License-Identifier: MIT
#include "pages/mesh/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/failure.h"
#include "pages/objects/words.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"

#include <cstdio>
#include <memory>

namespace cli::mesh {
namespace {

constexpr size_t kBufferSize = 128;

Report run(const std::string &argument) {
    const std::string mac = checkedMac(argument);
    needDevice();
    char buffer[kBufferSize] = "";
    snprintf(buffer, sizeof buffer, "%s", mac.c_str());
    ShellOutput output;
    ZINTU_meshgrove_get_IP_from_MAC(buffer);
    const std::string complaint = output.end();
    const std::string ip = text(buffer);
    if (ip.empty() && !complaint.empty()) {
        failOfShell("the mesh does not tell the address of " + mac, complaint);
    }
    if (ip.empty()) {
        throw Failure(Exit::Absent, mac + ": no satellite and no host has that MAC address");
    }
    if (zintu_isValidIPv4Address(ip.c_str()) != 0) {
        throw Failure(Exit::Failed, "the mesh names \"" + ip + "\", which is no IP address");
    }
    return {{{"mac", mac}, {"ip", ip}}, {}, ip + "\n", {}};
}

Run define(CLI::App &command) {
    const auto mac = std::make_shared<std::string>();
    addArgument(command, "MAC", *mac, "A MAC address");
    return [mac] { return run(*mac); };
}

} // namespace

const Noun kIpVerb = {"ip", "The IP address of a satellite", "02:00:5e:20:00:01 -g mesh", define};

} // namespace cli::mesh
