// SPDX-License-Identifier: MIT
#include "device/model/neighbours.h"

#include "device/model/diagnostic_results.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace device {
namespace {

constexpr const char *kOwnFile = "/opt/lantiq/var/neighbours.tsv";
constexpr const char *kFile = "/opt/lantiq/lib/neighbours.tsv";

// Columns of a line.
constexpr size_t kBand = 0;
constexpr size_t kSsid = 1;
constexpr size_t kSignal = 3;
constexpr size_t kBssid = 6;
constexpr size_t kColumns = 11;

std::vector<std::string> tabSeparated(const std::string &line) {
    std::vector<std::string> columns{""};
    for (const char c : line) {
        if (c == '\t') {
            columns.emplace_back();
        } else {
            columns.back() += c;
        }
    }
    return columns;
}

Neighbour neighbourOf(const std::string &line) {
    const std::vector<std::string> columns = tabSeparated(line);
    if (columns.size() != kColumns) {
        throw std::runtime_error("neighbours.tsv: a band and ten columns are wanted: " + line);
    }
    return {columns[kBand], columns[kSsid], columns[kBssid], std::atoi(columns[kSignal].c_str()),
            line.substr(columns[kBand].size() + 1)};
}

std::vector<Neighbour> readList(std::ifstream &file) {
    std::vector<Neighbour> neighbours;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.front() != '#') {
            neighbours.push_back(neighbourOf(line));
        }
    }
    return neighbours;
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
        return {Origin::File, readList(own)};
    }
    if (std::vector<Neighbour> results = diagnosticResults(database); !results.empty()) {
        return {Origin::Gateway, std::move(results)};
    }
    std::ifstream file(kFile);
    if (!file) {
        throw std::runtime_error(std::string(kFile) + " cannot be read");
    }
    return {Origin::MadeUp, readList(file)};
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
