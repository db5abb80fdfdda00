// SPDX-License-Identifier: MIT
// The DSL page: four whole objects into one record.
#include "by_hand.h"
#include "page.h"

using namespace by_hand;

namespace {

constexpr char kAnswers[] = R"(
    get Device.DSL.Line.1.
    Device.DSL.Line.1
        Enable = true
        EnableDataGathering = false
        Status = Up
        Alias = cpe-DslLine-1
        Name = dsl0
        LastChange = 86012
        LowerLayers =
        Upstream = true
        FirmwareVersion = 8.13.1.5.0.7
        LinkStatus = Up
        StandardsSupported = G.992.1_Annex_A,G.992.3_Annex_A,G.992.5_Annex_A,G.993.2_Annex_B
        XTSE = 0000000000000002
        StandardUsed = G.993.2_Annex_B
        XTSUsed = 0000000000000002
        LineEncoding = DMT
        AllowedProfiles = 8a,8b,12a,17a,35b
        CurrentProfile = 17a
        PowerManagementState = L0
        SuccessFailureCause = 0
        UPBOKLER = 114
        RXTHRSHds = -6
        ACTRAMODEds = 3
        ACTRAMODEus = 3
        TRELLISds = 1
        TRELLISus = 1
        ACTUALCE = 4
        LineNumber = 1
        UpstreamMaxBitRate = 45312
        DownstreamMaxBitRate = 118940
        UpstreamNoiseMargin = 92
        DownstreamNoiseMargin = 101
        SNRMpbus = 92,88
        SNRMpbds = 101,99,97
        UpstreamAttenuation = 148
        DownstreamAttenuation = 162
        UpstreamPower = 73
        DownstreamPower = 139
        XTURVendor = 00006030
        XTUCVendor = 0000A5D2
        XTUCVersion = 0C01

    get Device.DSL.Channel.1.
    Device.DSL.Channel.1
        Enable = true
        Status = Up
        Alias = cpe-DslChannel-1
        Name = dslchan0
        LastChange = 86010
        LowerLayers = Device.DSL.Line.1.
        LinkEncapsulationSupported = G.992.3_Annex_K_ATM,G.992.3_Annex_K_PTM
        LinkEncapsulationUsed = G.993.2_Annex_K_PTM
        LPATH = 0
        INTLVDEPTH = 1
        INTLVBLOCK = 160
        ActualInterleavingDelay = 4
        ACTINP = 20
        INPREPORT = false
        NFEC = 160
        RFEC = 12
        LSYMB = 16400
        UpstreamCurrRate = 41999
        DownstreamCurrRate = 109344
        ACTNDR = 108800
        ACTINPREIN = 0
        X_LANTIQ_COM_GinpActiveDs = true
        X_LANTIQ_COM_GinpActiveUs = true
        X_LANTIQ_COM_VectorStatus = 4
        X_LANTIQ_COM_OlrType = 2

    get Device.DSL.Line.1.TestParams.
    Device.DSL.Line.1.TestParams
        HLOGGds = 8
        HLOGGus = 8
        HLOGpsds = 103,104,105,107,109,112,115,119,124,130,136,143,151,160,169,179,190,201,213,226
        HLOGpsus = 98,99,101,103,106,109,113,118,123,129
        HLOGMTds = 255
        HLOGMTus = 255
        QLNGds = 8
        QLNGus = 8
        QLNpsds = 204,206,207,210,211,213,214,216,217,219
        QLNpsus = 201,202,203,205,206
        QLNMTds = 255
        QLNMTus = 255
        SNRGds = 8
        SNRGus = 8
        SNRpsds = 96,97,98,99,99,98,97,96,94,92
        SNRpsus = 88,89,89,88,86
        SNRMTds = 255
        SNRMTus = 255
        LATNds = 98,231,338
        LATNus = 62,184
        SATNds = 101,234,340
        SATNus = 63,187
        X_LANTIQ_COM_ACTPSDds = -602
        X_LANTIQ_COM_ACTPSDus = -598
        X_LANTIQ_COM_ACTATPds = 139

    get Device.DSL.Channel.1.Stats.Total.
    Device.DSL.Channel.1.Stats.Total
        XTURFECErrors = 100231
        XTUCFECErrors = 2312
        XTURHECErrors = 0
        XTUCHECErrors = 0
        XTURCRCErrors = 17
        XTUCCRCErrors = 3
        X_LANTIQ_COM_BytesSent = 5120031733
        X_LANTIQ_COM_BytesReceived = 88120031733
        X_LANTIQ_COM_ErroredSecs = 12
        X_LANTIQ_COM_SeverelyErroredSecs = 1
        X_LANTIQ_COM_LossOfFramingSecs = 0
        X_LANTIQ_COM_LossOfSignalSecs = 0
        X_LANTIQ_COM_UnavailableSecs = 31
        X_LANTIQ_COM_LeftrSecs = 0
        X_LANTIQ_COM_InitErrors = 0
        X_LANTIQ_COM_InitTimeouts = 0
        X_LANTIQ_COM_ErrorFreeBitsDs = 3822
        X_LANTIQ_COM_ErrorFreeBitsUs = 1181
        X_LANTIQ_COM_RtxTransmitted = 9981
        X_LANTIQ_COM_RtxCorrected = 9979
        X_LANTIQ_COM_RtxUncorrected = 2
        X_LANTIQ_COM_FullInits = 1
        X_LANTIQ_COM_ShortInits = 0
        X_LANTIQ_COM_FailedFullInits = 0
        X_LANTIQ_COM_SinceSync = 86012
)";

void readStatus(const char *value, ZintuDslLineInfo *info) {
    const size_t length = strlen(value);
    if (length >= sizeof(info->sStatus)) {
        return;
    }
    memcpy(info->sStatus, value, length);
    if (begins(info->sStatus, "Up") || memmem(info->sStatus, sizeof(info->sStatus), "Up", 2)) {
        memcpy(info->sStatus, "connected", 9);
    } else {
        memcpy(info->sStatus, "disconnected", 12);
    }
}

template <size_t Size>
void copyShorter(char (&field)[Size], const char *value) {
    const size_t length = strlen(value);
    if (length < Size) {
        memcpy(field, value, length);
    }
}

void readNumber(int32_t &field, const char *value) {
    if (*value) {
        field = number(value);
    }
}

void readLine(const char *name, const char *value, ZintuDslLineInfo *info) {
    switch (four(name)) {
    case four("Status"):
        if (is(name, "Status")) {
            readStatus(value, info);
        }
        break;
    case four("CurrentProfile"):
        if (is(name, "CurrentProfile")) {
            copyShorter(info->sCurrentProfile, value);
        }
        break;
    case four("Upstream"):
        if (is(name, "UpstreamMaxBitRate")) {
            readNumber(info->nUpstreamMaxBitRate, value);
        } else if (is(name, "UpstreamNoiseMargin")) {
            readNumber(info->nUpstreamNoiseMargin, value);
        }
        break;
    case four("Downstream"):
        if (is(name, "DownstreamMaxBitRate")) {
            readNumber(info->nDownstreamMaxBitRate, value);
        } else if (is(name, "DownstreamNoiseMargin")) {
            readNumber(info->nDownstreamNoiseMargin, value);
        }
        break;
    default:
        break;
    }
}

void readChannel(const char *name, const char *value, ZintuDslLineInfo *info) {
    switch (four(name)) {
    case four("Upstream"):
        if (is(name, "UpstreamCurrRate")) {
            readNumber(info->nUpstreamCurrRate, value);
        }
        break;
    case four("Downstream"):
        if (is(name, "DownstreamCurrRate")) {
            readNumber(info->nDownstreamCurrRate, value);
        }
        break;
    default:
        break;
    }
}

void readTestParams(const char *name, const char *value, ZintuDslLineInfo *info) {
    if (four(name) == four("LATN")) {
        if (is(name, "LATNds")) {
            copyShorter(info->sLATNds, value);
        } else if (is(name, "LATNus")) {
            copyShorter(info->sLATNus, value);
        }
    }
}

void readTotals(const char *name, const char *value, ZintuDslLineInfo *info) {
    switch (four(name)) {
    case four("XTUR"):
        if (is(name, "XTURCRCErrors")) {
            readNumber(info->nXTURCRCErrors, value);
        }
        break;
    case four("XTUC"):
        if (is(name, "XTUCCRCErrors")) {
            readNumber(info->nXTUCCRCErrors, value);
        }
        break;
    default:
        break;
    }
}

template <auto Read>
bool request(const char *path, ZintuDslLineInfo *info) {
    MsgHeader message;
    const bool answered = get(message, path) == 0;
    if (answered) {
        eachObject(message, [info](const ObjectNode &object) {
            eachParam(object, [info](const char *name, const char *value) { Read(name, value, info); });
        });
    }
    release(message);
    return answered;
}

int floorPage(ZintuDslLineInfo *info) {
    return request<readLine>("Device.DSL.Line.1.", info) && request<readChannel>("Device.DSL.Channel.1.", info) &&
                   request<readTestParams>("Device.DSL.Line.1.TestParams.", info) &&
                   request<readTotals>("Device.DSL.Channel.1.Stats.Total.", info)
               ? 0
               : -1;
}

const bench::AddPage kAdded(
    bench::limited(bench::page<ZintuGet_LineInfo, floorPage>("dsl-line", kAnswers, bench::Growth::Params), 1.05, 1.70));

} // namespace
