// SPDX-License-Identifier: MIT
// One request of one object, and one value out of its answer.
#include "by_hand.h"
#include "page.h"

using namespace by_hand;

namespace {

constexpr char kAnswers[] = R"(
    get Device.WiFi.Radio.1.
    Device.WiFi.Radio.1
        Enable = true
        Status = Up
        Alias = cpe-Radio-1
        Name = wlan0
        LastChange = 389290
        LowerLayers =
        Upstream = false
        MaxBitRate = 300
        SupportedFrequencyBands = 2.4GHz
        OperatingFrequencyBand = 2.4GHz
        SupportedStandards = b,g,n
        OperatingStandards = b,g,n
        PossibleChannels = 1,2,3,4,5,6,7,8,9,10,11,12,13
        ChannelsInUse = 1,6,11
        Channel = 6
        AutoChannelSupported = true
        AutoChannelEnable = true
        AutoChannelRefreshPeriod = 0
        ChannelLastChange = 42100
        ChannelLastSelectionReason = Auto_Startup
        MaxSupportedSSIDs = 8
        MaxSupportedAssociations = 64
        FirmwareVersion = 6.1.2
        SupportedOperatingChannelBandwidths = 20MHz,40MHz,Auto
        OperatingChannelBandwidth = 20MHz
        CurrentOperatingChannelBandwidth = 20MHz
        ExtensionChannel = Auto
        GuardInterval = Auto
        TransmitPowerSupported = 25,50,100
        TransmitPower = 100
        RegulatoryDomain = DEI
)";

struct Record {
    char regulatoryDomain[128];
};

int libraryPage(Record *record) {
    MsgHeader message = {};
    int code = faltocal_send_main(&message, "Device.WiFi.Radio.1.", "get", "get", 0);
    if (code == 0) {
        char *value = record->regulatoryDomain;
        code = caltofal_paramValue_get(message.objectList, "Radio.1", "RegulatoryDomain", &value);
    }
    faltocal_finalize(&message);
    return code;
}

int floorPage(Record *record) {
    MsgHeader message;
    int code = -1;
    if (get(message, "Device.WiFi.Radio.1.") == 0) {
        eachObject(message, [&](const ObjectNode &object) {
            if (begins(object.name, "Device.WiFi.Radio.1")) {
                eachParam(object, [&](const char *name, const char *value) {
                    if (is(name, "RegulatoryDomain") && code != 0) {
                        copy(record->regulatoryDomain, value);
                        code = 0;
                    }
                });
            }
        });
    }
    release(message);
    return code;
}

const bench::AddPage kAdded(bench::limited(bench::page<libraryPage, floorPage>("get", kAnswers, bench::Growth::Params),
                                           1.034, 1.33));

} // namespace
