// SPDX-License-Identifier: MIT
#include "store/nature.h"

#include "store/model.h"

namespace sandbox {
namespace {

constexpr std::string_view kRoot = "Device.";
constexpr std::string_view kOlderRoot = "InternetGatewayDevice.";
constexpr std::string_view kMakersObject = "Device.X_ZINTU_CurrentNetwork.";
constexpr std::string_view kMakersPart = ".X_"; // objects beyond the public model

} // namespace

std::string natureOf(Database &database) {
    if (!findObject(database, kRoot)) {
        return findObject(database, kOlderRoot) ? "this gateway's model is TR-098 (InternetGatewayDevice.): get and "
                                                  "set answer for it, pages do not, "
                                                  "as they read Device. objects"
                                                : "";
    }
    return findObject(database, kMakersObject)
               ? ""
               : "this gateway is of another maker, without Device.X_ZINTU_CurrentNetwork., from which the pages learn "
                 "the default WAN and the mode";
}

std::string noSuchObject(Database &database, const std::string &path) {
    const std::string reason = path + ": no such object";
    const bool explains = path.find(kMakersPart) != std::string::npos || !findObject(database, kRoot);
    const std::string nature = explains ? natureOf(database) : "";
    return nature.empty() ? reason : reason + "; " + nature;
}

} // namespace sandbox
