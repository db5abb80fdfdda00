// SPDX-License-Identifier: MIT
#include "tool/command.h"

#include <iostream>

namespace sandbox {

void addPath(Command &root, Tool &tool) {
    auto name = makeOptions<std::string>();
    Command command = root.add("path", "Print the file that a gateway is kept in");
    command.word("NAME", *name, "The gateway");
    command.runs([&tool, name] {
        tool.open(*name); // a demo is made, another gateway must be there
        std::cout << tool.location(*name).storeFile() << '\n';
    });
}

} // namespace sandbox
