// SPDX-License-Identifier: MIT
#include "device/model/neighbours.h"

#include "device/model/diagnostic_results.h"
#include "device/model/neighbour_list.h"
#include "store/location.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace device {
namespace {

constexpr const char *kOwnFile = "/opt/lantiq/var/neighbours.tsv";
constexpr const char *kFile = "/opt/lantiq/lib/neighbours.tsv";

// As the person who put it there knows it.
std::string ownName() {
    const sandbox::Location gateway = sandbox::Location::current();
    return gateway.directory + "/" + gateway.name + ".box/neighbours.tsv";
}

} // namespace

const char *nameOf(Origin origin) {
    switch (origin) {
    case Origin::File:
        return "file";
    case Origin::Gateway:
        return "gateway";
    case Origin::MadeUp:
        break;
    }
    return "made-up";
}

Surroundings readSurroundings(sandbox::Database &database) {
    if (std::ifstream own(kOwnFile); own) {
        return {Origin::File, parseNeighbours(own, ownName())};
    }
    if (std::vector<Neighbour> results = diagnosticResults(database); !results.empty()) {
        return {Origin::Gateway, std::move(results)};
    }
    std::ifstream file(kFile);
    if (!file) {
        throw std::runtime_error(std::string(kFile) + " cannot be read");
    }
    return {Origin::MadeUp, parseNeighbours(file, kFile)};
}

std::vector<Neighbour> within(const std::vector<Neighbour> &neighbours, const Interface &interface,
                              const std::vector<Interface> &interfaces) {
    std::vector<Neighbour> heard;
    std::copy_if(neighbours.begin(), neighbours.end(), std::back_inserter(heard), [&](const Neighbour &neighbour) {
        const bool own = std::any_of(interfaces.begin(), interfaces.end(),
                                     [&](const Interface &one) { return one.bssid == neighbour.bssid; });
        return neighbour.band == interface.radio.band && !own;
    });
    return heard;
}

} // namespace device
