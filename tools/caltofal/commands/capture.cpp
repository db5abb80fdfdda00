// SPDX-License-Identifier: MIT
#include "caltofal/commands/commands.h"
#include "caltofal/device.h"
#include "pages/capture/pages.h"
#include "pages/checked.h"
#include "pages/failure.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace cli {
namespace {

using namespace pages;

Show prepareCapture(const Arguments &given) {
    capture::Wanted wanted{.driver = given.given("--driver"), .secrets = given.given("--with-secrets")};
    for (const std::string &path : given.words("OBJECT")) {
        wanted.objects.push_back(checkedPath(path));
    }
    return [wanted] {
        if (wanted.driver) {
            needDevice();
        }
        return capture::take(wanted);
    };
}

std::string contentOf(const std::string &file) {
    if (std::filesystem::is_directory(file)) {
        throw Failure(Category::Failed, file + ": is a directory");
    }
    std::ifstream stream;
    if (file != "-") {
        stream.open(file, std::ios::binary);
    }
    std::istream &in = file == "-" ? std::cin : stream;
    std::string text(std::istreambuf_iterator<char>(in), {});
    if (in.bad() || !in) {
        throw Failure(Category::Failed, file + ": " + (errno != 0 ? std::strerror(errno) : "cannot be read"));
    }
    return text;
}

Show prepareApply(const Arguments &given) {
    return [file = given.word("FILE"), dryRun = given.given("--dry-run"), storeOnly = given.given("--db-only")] {
        return capture::apply(contentOf(file), file, dryRun, storeOnly);
    };
}

const Command kCaptureCommands[] = {
    {"capture",
     "Write what the gateway holds as a file for the sandbox",
     "-g mesh\n"
     "Device.WiFi. Device.IP. --with-secrets",
     prepareCapture,
     {{"OBJECT", Take::AnyWords, "The objects to capture, with all below them, or parameters; none: the whole model"},
      {"--driver", Take::Flag, "Also the wireless driver's files, and what the device's tools answer"},
      {"--with-secrets", Take::Flag, "Pass phrases, passwords and keys as they are"}},
     kActs},
    {"apply",
     "Write what differs in a capture back, in one message",
     "- --dry-run\n"
     "-",
     prepareApply,
     {{"FILE", Take::Text, "A capture, or another gateway file (no CSV or JSON); - for standard input"},
      {"--dry-run", Take::Flag, "Only tell what would be written"},
      {"--db-only", Take::Flag, "Store without applying: in force after the next start"}},
     kActs},
};

} // namespace

std::span<const Command> captureCommands() {
    return kCaptureCommands;
}

} // namespace cli
