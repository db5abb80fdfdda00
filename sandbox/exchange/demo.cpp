// SPDX-License-Identifier: MIT
#include "exchange/demo.h"

namespace sandbox {

const Demo *findDemo(std::string_view name) {
    for (const Demo &demo : demos()) {
        if (demo.name == name) {
            return &demo;
        }
    }
    return nullptr;
}

} // namespace sandbox
