// SPDX-License-Identifier: MIT
// The configuration layer's (or the device's) values beside the user interface's.
#include "caltofal.h"

const PairRow Dot11nProtect_FapiToUi_Table[2] = {
    {"Enabled", "true"},
    {"Disabled", "false"},
};

// The last row turns an absent value into the normal class.
const PairRow WMM_Option_FapiToUi_Table[4] = {
    {"AC_Normal", "normal"},
    {"AC_Gaming", "gaming"},
    {"AC_Streaming", "streaming"},
    {"AC_Normal", "(null)"},
};

const PairRow SecurityType_FapiToUi_Table[8] = {
    {"WPA-Personal", "WPA-PSK"},
    {"WPA2-Personal", "WPA2-PSK"},
    {"WPA-WPA2-Personal", "WPA2/WPA-PSK"},
    {"WPA2-Enterprise", "WPA2-Enterprise"},
    {"WPA-WPA2-Enterprise", "WPA2/WPA-Enterprise"},
    {"WEP-64", "WEP"},
    {"WEP-128", "WEP"},
    {"None", "NONE"},
};

const PairRow VhtShortGuardInterval_FapiToUi_Table[2] = {
    {"true", "on"},
    {"false", "off"},
};

const PairRow ShortGuardInterval_FapiToUi_Table[2] = {
    {"400nsec", "on"},
    {"800nsec", "off"},
};

const PairRow SideBand_FapiToUi_Table[3] = {
    {"AboveControlChannel", "upper"},
    {"BelowControlChannel", "lower"},
    {"Auto", "auto"},
};

const PairRow BandWidth_FapiToUi_Table[5] = {
    {"Auto", "auto"}, {"20MHz", "20"}, {"40MHz", "40"}, {"80MHz", "80"}, {"160MHz", "160"},
};

// "n" stands in both bands' rows; the first answers.
const PairRow WireLessMode_FapiToUi_Table[12] = {
    {"b", "802.11b"},     {"g", "802.11g"},         {"n", "802.11n"},       {"b,g", "802.11b+g"},
    {"g,n", "802.11g+n"}, {"b,g,n", "802.11b+g+n"}, {"a", "802.11a"},       {"n", "802.11n"},
    {"ac", "802.11ac"},   {"a,n", "802.11a+n"},     {"n,ac", "802.11n+ac"}, {"a,n,ac", "802.11a+n+ac"},
};

const PairRow Interface_DevToPhy_Table[4] = {
    {"wlan0", "phy0"},
    {"wlan1", "phy1"},
    {"wlan2", "phy2"},
    {"wlan3", "phy3"},
};

const PairRow Interface_FapiToUi_Table[2] = {
    {"2.4GHz", "2.4g"},
    {"5GHz", "5g"},
};
