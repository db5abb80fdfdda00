// SPDX-License-Identifier: MIT
// One set of four parameters.
#include "by_hand.h"
#include "page.h"

using namespace by_hand;

namespace {

constexpr char kAnswers[] = R"(
    get Device.WiFi.SSID.1.
    Device.WiFi.SSID.1
        Enable = true
        Status = Up
        Alias = cpe-SSID-1
        Name = wlan0
        LastChange = 389290
        LowerLayers = Device.WiFi.Radio.1.
        BSSID = 02:00:5E:10:00:01
        MACAddress = 02:00:5E:10:00:01
        SSID = home
        MLDUnit = -1
        Upstream = false
        X_ZINTU_Active = true
        X_ZINTU_NetworkType = Main
        ...
)";

struct Record {
    int code;
};

int libraryPage(Record *record) {
    MsgHeader message = {};
    record->code = faltocal_send_main(&message, "Device.WiFi.SSID.1.", "set", "set", 4, "Enable", "true", "SSID",
                                      "living room", "X_ZINTU_Active", "true", "X_ZINTU_NetworkType", "Main");
    faltocal_finalize(&message);
    return record->code;
}

int floorPage(Record *record) {
    MsgHeader message;
    int code = -1;
    if (begin(message, CALTOFAL_OPER_SET, SOPT_OBJVALUE, CALTOFAL_OWNER_SINGLE)) {
        ObjectNode *node = object(message, "Device.WiFi.SSID.1.", CALTOFAL_SUBOPER_SET);
        param(node, "Enable", "true");
        param(node, "SSID", "living room");
        param(node, "X_ZINTU_Active", "true");
        param(node, "X_ZINTU_NetworkType", "Main");
        code = locked(cal_setValue, message);
    }
    release(message);
    return record->code = code;
}

// Without limits: there is no answer to read, so that the request is all that the library's share is measured by.
bench::Page setPage() {
    bench::Page page = bench::page<libraryPage, floorPage>("set", kAnswers, bench::Growth::None);
    return page;
}

const bench::AddPage kAdded(setPage());

} // namespace
