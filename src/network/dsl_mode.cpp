// SPDX-License-Identifier: MIT
// DSL transmission modes.
#include "frame/lookup.h"
#include "frame/text.h"
#include "network/request.h"

#include <cstdlib>
#include <cstring>

using namespace frame;
using namespace network;

const char *const DEF_DSL_MODE[10] = {
    "G.dmt", "T1.413", "G.Lite", "ADSL", "ADSL2", "ADSL2 AnnexL", "ADSL2 AnnexM", "ADSL2+", "ADSL2+ AnnexM", "VDSL2",
};

namespace {

constexpr int kModes = 10;

// Flags are set, never cleared.
void setFlags(const char *list, int32_t *modes) {
    char tokens[256] = "";
    if (strlen(list) < sizeof(tokens)) {
        copyText(tokens, list);
    }
    char *rest = nullptr;
    for (char *token = strtok_r(tokens, ",", &rest); token; token = strtok_r(nullptr, ",", &rest)) {
        const int mode = atoi(token);
        if (mode >= 1 && mode <= kModes) {
            modes[mode - 1] = 1;
        }
    }
}

} // namespace

int32_t ZintuGet_DslMode(int32_t modes[10]) {
    Message message;
    const int code = getObject(message, "Device.DSL.X_LANTIQ_COM_Config");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure \n");
    }
    forEachValue(*message, "XTSE_Modes", [modes](const char *list) { setFlags(list, modes); });
    return 0;
}
