// SPDX-License-Identifier: MIT
#include "pages/layer/code.h"

#include "caltofal.h"

namespace pages {

Category categoryOf(int code) {
    switch (code) {
    case CALTOFAL_ABSENT_OBJECT:
    case CALTOFAL_UNKNOWN_PARAMETER:
    case CALTOFAL_NO_MATCH:
        return Category::Absent;
    case CALTOFAL_READ_ONLY:
    case CALTOFAL_WRONG_TYPE:
    case CALTOFAL_OUT_OF_RANGE:
    case CALTOFAL_NOT_A_TABLE:
        return Category::Refused;
    case CALTOFAL_NO_GATEWAY:
    case CALTOFAL_STORE_BUSY:
    case CALTOFAL_STORE_FAILED:
        return Category::NoLayer;
    default:
        return Category::Failed;
    }
}

std::string meaningOf(int code) {
    const char *text = caltofal_layerCodeText(code);
    return text ? text : "the configuration layer answered " + std::to_string(code);
}

} // namespace pages
