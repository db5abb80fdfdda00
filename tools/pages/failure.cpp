// SPDX-License-Identifier: MIT
#include "pages/failure.h"

namespace pages {

Value errorValue(const Failure &failure) {
    return Value::object({{"error", Value::object({
                                        {"code", failure.code() == 0 ? Value() : Value(failure.code())},
                                        {"exit", static_cast<int>(failure.category())},
                                        {"message", failure.what()},
                                        {"object", failure.object().empty() ? Value() : Value(failure.object())},
                                    })}});
}

} // namespace pages
