// SPDX-License-Identifier: MIT
#include "pages/failure.h"

namespace pages {

size_t explanationIn(std::string_view reason) {
    constexpr std::string_view kAbsent = "no such object";
    const size_t found = reason.find(std::string(kAbsent) + "; ");
    return found == std::string_view::npos ? reason.size() : found + kAbsent.size();
}

Value errorValue(const Failure &failure) {
    return Value::object({{"error", Value::object({
                                        {"code", failure.code() == 0 ? Value() : Value(failure.code())},
                                        {"exit", static_cast<int>(failure.category())},
                                        {"message", failure.what()},
                                        {"object", failure.object().empty() ? Value() : Value(failure.object())},
                                    })}});
}

} // namespace pages
