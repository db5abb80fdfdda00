// SPDX-License-Identifier: MIT
#include "device_tools.h"

#include "errors.h"
#include "pages/failure.h"
#include "pages/layer/request_log.h"

#include <cstdlib>
#include <string_view>

namespace web {

void needDeviceTools() {
    const char *box = getenv("CALTOFAL_BOX");
    if (pages::isSandbox() && (!box || std::string_view(box) != "1")) {
        throw pages::Failure(static_cast<pages::Category>(kExitNoBox),
                             "the device's tools are not here: start caltofal-sandbox run -- caltofal-web");
    }
}

} // namespace web
