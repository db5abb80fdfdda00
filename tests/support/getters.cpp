// SPDX-License-Identifier: MIT
#include "getters.h"

namespace test {
namespace {

// A record between guards: whoever writes past it is seen.
template <class Record>
class Guarded {
  public:
    Guarded() { memset(after_, kGuard, sizeof(after_)); }
    ~Guarded() {
        for (const char c : after_) {
            EXPECT_EQ(kGuard, c) << "written past the record";
        }
    }
    Guarded(const Guarded &) = delete;
    Guarded &operator=(const Guarded &) = delete;

    Record *get() { return &record_; }
    [[nodiscard]] std::string bytes() const { return {reinterpret_cast<const char *>(&record_), sizeof(record_)}; }

  private:
    static constexpr char kGuard = '#';
    Record record_ = {};
    char after_[64];
};

struct Text {
    char text[128];
};

template <class Record, class Call>
std::string fill(Call call) {
    Guarded<Record> record;
    const int result = call(record.get());
    return std::to_string(result) + '\n' + record.bytes();
}

template <class Call>
std::string fillText(Call call) {
    return fill<Text>([&](Text *text) { return call(text->text); });
}

template <class Call>
std::string fillPair(Call call) {
    return fillText([&](char *text) { return call(text, text + 64); });
}

std::string lanv4() {
    return fill<LANv4Info>(ZintuGet_LANv4Info);
}
std::string lanv6() {
    return fill<LANv6Info>(ZintuGet_LANv6Info);
}

WifiParamTable changeTable() {
    WifiParamTable table = {};
    for (const char *object : {"Device.A", "Device.B"}) {
        for (const char *param : {"P", "Q"}) {
            SetParam(&table, object, param, "v");
        }
    }
    return table;
}

std::string writeBack() {
    WifiParamTable changes = changeTable();
    MsgHeader message = {};
    const int result = faltocal_fromDB(&message, &changes, 0, 1);
    faltocal_finalize(&message);
    return std::to_string(result);
}

// The request functions that hosts call themselves, which leave the release to them.
template <class Call>
std::string request(Call call) {
    MsgHeader message = {};
    const int result = call(&message);
    faltocal_finalize(&message);
    return std::to_string(result);
}

std::string everyRequest() {
    return request([](auto *m) { return faltocal_send_main(m, "Device.A.", "get", "get", 2, "P", "Q"); }) +
           request([](auto *m) { return faltocal_send_main_ToDb(m, "Device.A.", "set", "add", 1, "P", "v"); }) +
           request([](auto *m) {
               const char *pairs[] = {"P", "v"};
               char object[] = "Device.A.";
               return faltocal_send_main_multi_obj_No_variable(m, object, "set", "set", 1, pairs);
           }) +
           request([](auto *m) {
               return faltocal_SendMultiObj(0, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, m, "Device.A.", "get", "get", 1,
                                            "P") |
                      faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, m, "Device.B.", "get", "get",
                                            0);
           });
}

std::string channelList() {
    return fill<WifiChannelList>([](WifiChannelList *list) { return GetChannelList("wlan0", 1, list); });
}

} // namespace

const std::vector<Getter> &getters() {
    static const std::vector<Getter> rows = {
        // A new row goes to the end: the fuzzer's corpus names a getter by its number.
        {"OperMode", 0, [] { return std::to_string(ZintuGet_OperMode()); }},
        {"DefGw", 0, [] { return fill<ZintuWanInfo>(ZintuGet_DefGw); }},
        {"UciSectionByConnMode", 0,
         [] { return fillText([](char *out) { return ZintuGet_UciSectionByConnMode("ETH", out); }); }},
        {"UciSectionOfDefGw", 0, [] { return fillText(ZintuGet_UciSectionOfDefGw); }},
        {"LowerLayers", 0, [] { return fillText([](char *out) { return ZintuGet_LowerLayers("Device.X", out); }); }},
        {"EthWanObjName", 0, [] { return fillText(ZintuGet_EthWanObjName); }},
        {"LineInfo", 0, [] { return fill<ZintuDslLineInfo>(ZintuGet_LineInfo); }},
        {"DslMode", 0, [] { return fill<int32_t[10]>([](auto *modes) { return ZintuGet_DslMode(*modes); }); }},
        {"WanDns", 0,
         [] { return fillPair([](char *a, char *b) { return ZintuGet_WanDns("Device.IP.Interface.3", a, b); }); }},
        {"WanStaticDns", 0,
         [] {
             return fillPair([](char *a, char *b) {
                 int32_t automatic = 0;
                 return ZintuGet_WanStaticDns("Device.IP.Interface.3", &automatic, a, b) + 2 * automatic;
             });
         }},
        {"BrWanInfo", 0, [] { return fill<ZintuWanInfo>([](auto *info) { return ZintuGet_BrWanInfo(0, info); }); }},
        {"WanIPv6", 1, [] { return fill<ZintuWanInfo>(ZintuGet_WanIPv6); }},
        {"DefWanInfo", 1, [] { return fill<ZintuWanInfo>(ZintuGet_DefWanInfo); }},
        {"IPv6PD", 0, [] { return std::to_string(ZintuGet_IPv6PD()); }},
        {"AtmInfo", 0, [] { return fill<ZintuWanInfo>(ZintuGet_AtmInfo); }},
        {"LANv4Info", 0, lanv4},
        {"LANv6Info", 0, lanv6},
        {"MultiWanInfo", 0, [] { return fill<ZintuMultiWanInfo>(ZintuGet_MultiWanInfo); }},
        {"WanIfName", 0, [] { return fillText(zintu_GetWanIfName); }},
        {"ValueFromDBInfo", 0,
         [] {
             return fillPair([](char *name, char *) {
                 return zintu_GetValueFromDBInfo("Device.X", "Name", "v", "Name", name, nullptr);
             });
         }},
        {"IptvStb", 0, [] { return std::to_string(Zintu_isEnabledIptvStb()); }},
        {"DeviceID", 0, [] { return std::to_string(GetDeviceID(std::string("02:00:00:00:00:01").data())); }},
        {"MeshEnabled", 0, [] { return std::to_string(ZINTU_meshgrove_check_is_enabled()); }},
        {"MeshSwitch", 0, [] { return std::to_string(ZINTU_meshgrove_set_enable_value(1)); }},
        {"ChannelList", 1, channelList},
        {"StationCount", 0, [] { return std::to_string(GetAssociatedDeviceNumberOfEntries(1)); }},
        {"SsidSnapshot", 0,
         [] { return fill<WifiParamTable>([](auto *table) { return GetSsIdInfoFromFapiToBuff(1, table); }); }},
        {"RadioSnapshot", 0,
         [] { return fill<WifiParamTable>([](auto *table) { return GetWireInfoFromFapiToBuff(2, table); }); }},
        {"WriteBack", 0, writeBack},
        {"EPEnable", 0, [] { return fillText(GetEPEnable); }},
        {"EPConnectionStatus", 0, [] { return fillText(GetEPConnectionStatus); }},
        {"Requests", 0, everyRequest},
    };
    return rows;
}

} // namespace test
