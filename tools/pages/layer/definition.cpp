// SPDX-License-Identifier: MIT
#include "pages/layer/definition.h"

#include <dlfcn.h>

namespace pages {

std::string definitionOf(const std::string &parameter) {
    static const auto tell =
        reinterpret_cast<const char *(*)(const char *)>(dlsym(RTLD_DEFAULT, "cal_sandboxDefinition"));
    return tell ? tell(parameter.c_str()) : "";
}

} // namespace pages
