// SPDX-License-Identifier: MIT
//
// caltofal-device-model: what the device's programs, most of them shell scripts, ask of the gateway's model. It works
// on the store itself, so that faults ordered for the configuration layer do not hit the device's own programs.
#include "device/model/channel_plan.h"
#include "device/model/driver.h"
#include "device/model/neighbours.h"
#include "device/model/notification.h"
#include "device/model/playback.h"
#include "device/model/rows.h"
#include "device/model/update.h"
#include "device/model/wifi.h"
#include "exchange/gateway.h"

#include <algorithm>
#include <iostream>
#include <span>

namespace device {
namespace {

using Arguments = std::span<char *const>;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

std::unique_ptr<sandbox::Database> openGateway() {
    return sandbox::openGateway(sandbox::Location::current());
}

// The text as one word of a shell.
std::string shellQuoted(const std::string &text) {
    std::string word = "'";
    for (const char c : text) {
        word += c == '\'' ? "'\\''" : std::string(1, c);
    }
    return word + "'";
}

void assign(const char *variable, const std::string &text) {
    std::cout << variable << '=' << shellQuoted(text) << '\n';
}

void assign(const char *variable, int number) {
    std::cout << variable << '=' << number << '\n';
}

// The interface of that name; NULL when there is none.
const Interface *findInterface(const std::vector<Interface> &interfaces, const std::string &name) {
    const auto found =
        std::find_if(interfaces.begin(), interfaces.end(), [&](const Interface &one) { return one.name == name; });
    return found == interfaces.end() ? nullptr : &*found;
}

// The first interface of a wireless device such as "phy2"; NULL when there is none.
const Interface *findPhy(const std::vector<Interface> &interfaces, const std::string &name) {
    const auto found = std::find_if(interfaces.begin(), interfaces.end(),
                                    [&](const Interface &one) { return "phy" + std::to_string(one.phy) == name; });
    return found == interfaces.end() ? nullptr : &*found;
}

int table(Arguments arguments) {
    const auto database = openGateway();
    for (const Row &row : rowsOf(*database, arguments[0])) {
        std::cout << row.path;
        for (const char *name : arguments.subspan(1)) {
            std::cout << '\t' << row.text(name);
        }
        std::cout << '\n';
    }
    return kDone;
}

int set(Arguments arguments) {
    const auto database = openGateway();
    sandbox::Transaction transaction(*database, sandbox::Transaction::Kind::Write);
    const bool done = setParameter(*database, arguments[0], arguments[1]);
    transaction.commit();
    return done ? kDone : kFailed;
}

int join(Arguments arguments) {
    const auto database = openGateway();
    sandbox::Transaction transaction(*database, sandbox::Transaction::Kind::Write);
    const bool done = joinStation(*database, arguments[0], arguments[1]);
    transaction.commit();
    return done ? kDone : kFailed;
}

int interface(Arguments arguments) {
    const auto database = openGateway();
    const std::vector<Interface> interfaces = readInterfaces(*database);
    const Interface *one = findInterface(interfaces, arguments[0]);
    if (one == nullptr) {
        return kFailed;
    }
    assign("index", static_cast<int>(one - interfaces.data()) + 1);
    assign("phy", one->phy);
    assign("type", one->uplink ? "managed" : "AP");
    assign("ssid", one->ssid);
    assign("bssid", one->bssid);
    assign("up", one->up ? "1" : "");
    assign("radio_on", one->radio.enabled ? "1" : "");
    assign("band", one->radio.band);
    assign("channel", one->radio.channel);
    assign("frequency", frequencyOf(one->radio, one->radio.channel));
    assign("width", one->radio.width);
    return kDone;
}

int channels(Arguments arguments) {
    const auto database = openGateway();
    const std::vector<Interface> interfaces = readInterfaces(*database);
    const Interface *one = findInterface(interfaces, arguments[0]);
    one = one == nullptr ? findPhy(interfaces, arguments[0]) : one;
    if (one == nullptr) {
        return kFailed;
    }
    std::cout << channelListing(one->radio);
    return kDone;
}

int survey(Arguments arguments) {
    const std::string wanted = arguments[1];
    const auto database = openGateway();
    const std::vector<Interface> interfaces = readInterfaces(*database);
    const Interface *one = findInterface(interfaces, arguments[0]);
    if (one == nullptr || !one->radio.enabled) {
        return kFailed;
    }
    for (const Neighbour &neighbour : within(readSurroundings(*database).networks, *one, interfaces)) {
        if (wanted.empty() || neighbour.ssid == wanted) {
            std::cout << neighbour.line << '\n';
        }
    }
    return kDone;
}

int origin(Arguments /*none*/) {
    std::cout << nameOf(readSurroundings(*openGateway()).origin) << '\n';
    return kDone;
}

int notification(Arguments arguments) {
    const std::optional<Notification> parsed = parseNotification(arguments[0]);
    if (!parsed) {
        return kFailed;
    }
    const auto named = [&](const char *name) {
        const auto found = parsed->named.find(name);
        return found == parsed->named.end() ? std::string() : found->second;
    };
    assign("id_key", parsed->idKey);
    assign("id", parsed->id);
    assign("action", named("Action"));
    assign("name", named("Name"));
    assign("ssid", named("SSID"));
    return kDone;
}

int layOutRecordings(Arguments arguments) {
    layOut(*openGateway(), arguments[0]);
    return kDone;
}

int driver(Arguments arguments) {
    startDriver(sandbox::Location::current(), arguments[0]);
    return kDone;
}

struct Command {
    const char *name;
    const char *arguments;
    size_t fewest, most;
    int (*run)(Arguments);
    const char *meaning;
};

constexpr size_t kAny = 64;

constexpr Command kCommands[] = {
    {"table", "OBJECT [NAME...]", 1, kAny, table, "a line for each instance: its path and the named values, by tabs"},
    {"set", "PARAMETER VALUE", 2, 2, set, "set a parameter as the device itself does, read-only or not"},
    {"join", "ACCESSPOINT MAC", 2, 2, join, "associate a station until the next boot"},
    {"interface", "NAME", 1, 1, interface, "a wireless interface's figures, as assignments of a shell"},
    {"channels", "INTERFACE|PHY", 1, 1, channels, "the channels that its radio may use"},
    {"survey", "INTERFACE SSID", 2, 2, survey, "the networks that it hears; \"\" for all"},
    {"origin", "", 0, 0, origin, "where these networks are known from: file, gateway or made-up"},
    {"notification", "JSON", 1, 1, notification, "a request to the service daemon, as assignments of a shell"},
    {"recordings", "DIRECTORY", 1, 1, layOutRecordings, "lay out what a captured gateway's files and tools said"},
    {"driver", "DIRECTORY", 1, 1, driver, "write the wireless driver's files, and stay to keep them true"},
};

int usage() {
    std::cerr << "Usage:\n";
    for (const Command &command : kCommands) {
        std::cerr << "  caltofal-device-model " << command.name << ' ' << command.arguments << "\n      "
                  << command.meaning << '\n';
    }
    return kUsage;
}

int run(Arguments arguments) {
    if (arguments.empty()) {
        return usage();
    }
    const Arguments rest = arguments.subspan(1);
    for (const Command &command : kCommands) {
        if (command.name == std::string_view(arguments[0]) && rest.size() >= command.fewest &&
            rest.size() <= command.most) {
            const int result = command.run(rest);
            std::cout.flush();
            return result;
        }
    }
    return usage();
}

} // namespace
} // namespace device

int main(int argc, char **argv) {
    try {
        return device::run({argv + 1, static_cast<size_t>(argc - 1)});
    } catch (const std::exception &error) {
        std::cerr << "caltofal-device-model: " << error.what() << '\n';
        return device::kFailed;
    }
}
