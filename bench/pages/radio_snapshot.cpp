// SPDX-License-Identifier: MIT
// The settings of a radio, kept as rows: as one radio answers, and with as many objects as fill the table.
#include "by_hand.h"
#include "page.h"

using namespace by_hand;

namespace {

constexpr char kAnswers[] = R"(
    get Device.WiFi.Radio.1
    Device.WiFi.Radio.1
        Enable = true
        Name = wlan0
        GuardInterval = 400nsec
        BeaconPeriod = 100
        DTIMPeriod = 1
        FragmentationThreshold = 2346
        RTSThreshold = 2347
        IEEE80211hEnabled = false
        RegulatoryDomain = DEI
        AutoChannelEnable = true
        Channel = 6
        OperatingStandards = b,g,n
        OperatingChannelBandwidth = 20MHz
        ExtensionChannel = Auto
        TransmitPower = 100
        ChannelsInUse = 1,6,11
    get Device.WiFi.AccessPoint.1
    Device.WiFi.AccessPoint.1
        WMMEnable = true
        UAPSDEnable = true
        X_ZINTU_WMMOption = AC_Normal
        X_ZINTU_WMMAckPolicy = false
    get Device.WiFi.Radio.1.X_LANTIQ_COM_Vendor
    Device.WiFi.Radio.1.X_LANTIQ_COM_Vendor
        Dot11dEnable = true
        Dot11nProtection = Enabled
        WaveExplicitBeamforming = true
        VhtSUbeamformerEnabled = false
        VhtGuardInterval = true
        WaveInterfererDetectionThreshold = -68
        CoexEnabled = true
        WaveIgnore40MhzIntolerant = false
        WaveMuOperation = false
)";

int libraryPage(WifiParamTable *table) {
    return GetWireInfoFromFapiToBuff(1, table);
}

void ask(MsgHeader &message, const char *prefix, const char *rest, std::initializer_list<const char *> names) {
    char path[128];
    char *end = stpcpy(path, prefix);
    *end++ = '1';
    strcpy(end, rest);
    ObjectNode *node = object(message, path);
    for (const char *name : names) {
        param(node, name);
    }
}

class Keeper {
  public:
    Keeper(WifiParamTable *table, const char *object, const char *name, const char *value)
        : table_(table), object_(object), name_(name), value_(value) {}

    // Keeps the parameter if it has this name; whether it has.
    template <size_t Size>
    bool keepIf(const char (&name)[Size]) {
        if (!is(name_, name)) {
            return false;
        }
        if (table_->count < 100) {
            WifiParamRow &row = table_->rows[table_->count++];
            copy(row.object, object_);
            memcpy(row.parameter, name, Size);
            copy(row.value, value_);
        }
        return true;
    }

    template <size_t... Sizes>
    void keepOneOf(const char (&...names)[Sizes]) {
        (keepIf(names) || ...);
    }

  private:
    WifiParamTable *table_;
    const char *object_;
    const char *name_;
    const char *value_;
};

void keep(WifiParamTable *table, const char *object, const char *name, const char *value) {
    Keeper keeper(table, object, name, value);
    switch (four(name)) {
    case four("Enable"):
        return keeper.keepOneOf("Enable");
    case four("GuardInterval"):
        return keeper.keepOneOf("GuardInterval");
    case four("BeaconPeriod"):
        return keeper.keepOneOf("BeaconPeriod");
    case four("DTIMPeriod"):
        return keeper.keepOneOf("DTIMPeriod");
    case four("FragmentationThreshold"):
        return keeper.keepOneOf("FragmentationThreshold");
    case four("RTSThreshold"):
        return keeper.keepOneOf("RTSThreshold");
    case four("IEEE80211hEnabled"):
        return keeper.keepOneOf("IEEE80211hEnabled");
    case four("RegulatoryDomain"):
        return keeper.keepOneOf("RegulatoryDomain");
    case four("AutoChannelEnable"):
        return keeper.keepOneOf("AutoChannelEnable");
    case four("Channel"):
        return keeper.keepOneOf("Channel");
    case four("OperatingStandards"):
        return keeper.keepOneOf("OperatingStandards", "OperatingChannelBandwidth");
    case four("ExtensionChannel"):
        return keeper.keepOneOf("ExtensionChannel");
    case four("TransmitPower"):
        return keeper.keepOneOf("TransmitPower");
    case four("WMMEnable"):
        return keeper.keepOneOf("WMMEnable");
    case four("UAPSDEnable"):
        return keeper.keepOneOf("UAPSDEnable");
    case four("X_ZINTU_"):
        return keeper.keepOneOf("X_ZINTU_WMMOption", "X_ZINTU_WMMAckPolicy");
    case four("Dot11"):
        return keeper.keepOneOf("Dot11dEnable", "Dot11nProtection");
    case four("VhtSUbeamformerEnabled"):
        return keeper.keepOneOf("VhtSUbeamformerEnabled");
    case four("VhtGuardInterval"):
        return keeper.keepOneOf("VhtGuardInterval");
    case four("CoexEnabled"):
        return keeper.keepOneOf("CoexEnabled");
    case four("Wave"):
        return keeper.keepOneOf("WaveExplicitBeamforming", "WaveInterfererDetectionThreshold",
                                "WaveIgnore40MhzIntolerant", "WaveMuOperation");
    default:
        return;
    }
}

int floorPage(WifiParamTable *table) {
    MsgHeader message;
    int code = -1;
    if (begin(message, CALTOFAL_OPER_GET, CALTOFAL_LIST_GET_LEAF, CALTOFAL_OWNER_HOST)) {
        ask(message, "Device.WiFi.Radio.", "",
            {"Enable", "Name", "GuardInterval", "BeaconPeriod", "DTIMPeriod", "FragmentationThreshold", "RTSThreshold",
             "IEEE80211hEnabled", "RegulatoryDomain", "AutoChannelEnable", "Channel", "OperatingStandards",
             "OperatingChannelBandwidth", "ExtensionChannel", "TransmitPower", "ChannelsInUse"});
        ask(message, "Device.WiFi.AccessPoint.", "",
            {"WMMEnable", "UAPSDEnable", "X_ZINTU_WMMOption", "X_ZINTU_WMMAckPolicy"});
        ask(message, "Device.WiFi.Radio.", ".X_LANTIQ_COM_Vendor",
            {"Dot11dEnable", "Dot11nProtection", "WaveExplicitBeamforming", "VhtSUbeamformerEnabled",
             "VhtGuardInterval", "WaveInterfererDetectionThreshold", "CoexEnabled", "WaveIgnore40MhzIntolerant",
             "WaveMuOperation"});
        code = locked(cal_getValue, message);
        if (code == 0) {
            eachObject(message, [table](const ObjectNode &object) {
                eachParam(object, [table, &object](const char *name, const char *value) {
                    keep(table, object.name, name, value);
                });
            });
        }
    }
    release(message);
    return code;
}

bench::Page snapshot(const char *name, int times, double total, double own) {
    bench::Page page = bench::page<libraryPage, floorPage>(name, kAnswers, bench::Growth::None);
    page.answers = bench::grow(page.answers, bench::Growth::Objects, times);
    return bench::limited(page, total, own);
}

const bench::AddPage kOneRadio(snapshot("radio-snapshot", 1, 1.25, 2.38));
const bench::AddPage kFullTable(snapshot("radio-snapshot-100", 4, 1.192, 1.86));

} // namespace
