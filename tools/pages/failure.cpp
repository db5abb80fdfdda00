// SPDX-License-Identifier: MIT
#include "caltofal/print.h"

#include <iostream>

namespace cli {

Json errorJson(const Failure &failure) {
    Json error = Json::object();
    error["code"] = failure.code() == 0 ? Json() : Json(failure.code());
    error["exit"] = static_cast<int>(failure.exit());
    put(error, "message", failure.what());
    put(error, "object", failure.object().empty() ? Json() : Json(failure.object()));
    return {{"error", error}};
}

void printError(const Failure &failure, bool json) {
    if (json) {
        std::cerr << dumped(errorJson(failure)) << '\n';
    } else {
        std::cerr << "caltofal: " << printable(failure.what()) << '\n';
    }
}

} // namespace cli
