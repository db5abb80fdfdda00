// SPDX-License-Identifier: MIT
#include "device/box/places.h"
#include "tool/command.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace sandbox {
namespace {

struct ConsoleOptions {
    bool follow = false;
    bool messages = false;
};

[[noreturn]] void follow(const std::string &file) {
    execlp("tail", "tail", "-n", "+1", "-F", file.c_str(), nullptr);
    throw Failure(std::string("tail: ") + std::strerror(errno));
}

void print(const std::string &file) {
    std::ifstream lines(file, std::ios::binary);
    if (lines && lines.peek() != std::ifstream::traits_type::eof()) {
        std::cout << lines.rdbuf();
    }
}

} // namespace

void addConsole(Command &root, Tool &tool) {
    auto options = makeOptions<ConsoleOptions>();
    Command command = root.add("console", "Print what was written to the device's console");
    command.flag("-f,--follow", options->follow, "Go on with what comes, up to Ctrl-C");
    command.flag("-m,--messages", options->messages, "The system log instead: the daemons' and libraries' lines");
    command.runs([&tool, options] {
        const Location location = tool.location();
        if (!isGateway(location)) {
            throw Failure("there is no gateway " + location.name + " in " + location.directory, kAbsent);
        }
        const std::string file = options->messages ? box::messagesFile(location) : box::consoleFile(location);
        options->follow ? follow(file) : print(file);
    });
}

} // namespace sandbox
