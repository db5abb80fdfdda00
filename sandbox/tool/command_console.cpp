// SPDX-License-Identifier: MIT
#include "device/box/places.h"
#include "tool/command.h"
#include "value/secret.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <poll.h>
#include <unistd.h>

namespace sandbox {
namespace {

struct ConsoleOptions {
    bool follow = false;
    bool messages = false;
    bool secrets = false;
};

void printLine(const std::string &line, bool secrets) {
    std::cout << (secrets ? line : withoutSecrets(line)) << '\n';
}

void print(const std::string &file, bool secrets) {
    std::ifstream lines(file, std::ios::binary);
    for (std::string line; std::getline(lines, line);) {
        printLine(line, secrets);
    }
}

struct EndPipe {
    void operator()(FILE *pipe) const { pclose(pipe); }
};

// Up to the reader's key. The program goes when this one does.
void follow(const std::string &file, bool secrets) {
    setenv("CALTOFAL_CONSOLE", file.c_str(), 1);
    const std::unique_ptr<FILE, EndPipe> lines(popen("exec tail -n +1 --pid=$PPID -F -- \"$CALTOFAL_CONSOLE\"", "re"));
    if (!lines) {
        throw Failure(std::string("tail: ") + std::strerror(errno));
    }
    pollfd watched[] = {{fileno(lines.get()), POLLIN, 0}, {STDOUT_FILENO, 0, 0}};
    std::string text;
    char bytes[4096];
    while (poll(watched, std::size(watched), -1) > 0 && watched[1].revents == 0) { // until nobody reads any more
        const ssize_t length = read(watched[0].fd, bytes, sizeof(bytes));
        if (length <= 0) {
            return;
        }
        text.append(bytes, static_cast<size_t>(length));
        for (size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n')) {
            printLine(text.substr(0, end), secrets);
            text.erase(0, end + 1);
        }
        std::cout.flush();
    }
}

} // namespace

void addConsole(Command &root, Tool &tool) {
    auto options = makeOptions<ConsoleOptions>();
    Command command = root.add("console", "Print what was written to the device's console");
    command.flag("-f,--follow", options->follow, "Go on with what comes, up to Ctrl-C");
    command.flag("-m,--messages", options->messages, "The system log instead: the daemons' and libraries' lines");
    command.flag("--show-secrets", options->secrets, kShowSecrets);
    command.runs([&tool, options] {
        const Location location = tool.location();
        if (!isGateway(location)) {
            throw Failure("there is no gateway " + location.name + " in " + location.directory, kAbsent);
        }
        const std::string file = options->messages ? box::messagesFile(location) : box::consoleFile(location);
        options->follow ? follow(file, options->secrets) : print(file, options->secrets);
    });
}

} // namespace sandbox
