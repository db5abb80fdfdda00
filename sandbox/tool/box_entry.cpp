// SPDX-License-Identifier: MIT
#include "tool/box_entry.h"

#include "device/box/box.h"
#include "device/box/obstacle.h"
#include "exchange/gateway.h"

namespace sandbox {

void addShown(Command &command, std::vector<std::string> &shown) {
    command.list("-b,--bind", shown, "DIRECTORY", "A directory to show in the box as well, writable");
}

void enterBox(Tool &tool, const std::vector<std::string> &shown, std::vector<std::string> program) {
    try {
        const Location location = tool.location();
        openGateway(location); // made when it is a demo's; refused here, not by each program in the box
        tool.exitCode = box::run({location, std::move(program), shown});
    } catch (const box::Obstacle &obstacle) {
        say(std::string("caltofal-sandbox: ") + obstacle.what());
        tool.exitCode = box::kExitNoBox;
    }
}

} // namespace sandbox
