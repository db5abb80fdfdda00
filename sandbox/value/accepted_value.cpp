// SPDX-License-Identifier: MIT
#include "value/accepted_value.h"

#include "caltofal.h"
#include "value/refusal.h"
#include "value/secret.h"

namespace sandbox {

std::string acceptedValue(const ValueType &type, std::string_view parameter, std::string value) {
    const std::string subject = std::string(parameter) + ": ";
    const auto shown = [&] { return subject + quotedValue(parameter, value); };
    if (value.size() >= PARAM_VALUE_SIZE) {
        throw Refusal(CALTOFAL_OUT_OF_RANGE, subject + "the value has " + std::to_string(value.size()) +
                                                 " bytes, at most " + std::to_string(PARAM_VALUE_SIZE - 1) +
                                                 " can be stored");
    }
    switch (type.check(value)) {
    case ValueType::Verdict::WrongType:
        throw Refusal(CALTOFAL_WRONG_TYPE, shown() + " is not of type " + type.text());
    case ValueType::Verdict::OutOfRange:
        throw Refusal(CALTOFAL_OUT_OF_RANGE, shown() + " is outside " + type.text());
    case ValueType::Verdict::Valid:
        break;
    }
    return value;
}

} // namespace sandbox
