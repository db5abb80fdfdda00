// SPDX-License-Identifier: MIT
#include "replaced.h"
#include "wifi_support.h"

#include <span>

using namespace test;

namespace {

using Settings = WifiTest;

const std::string kLong(200, 'v');

// The rows as "object.parameter=value".
std::vector<std::string> rows(const WifiParamTable &table) {
    std::vector<std::string> texts;
    for (const WifiParamRow &row : std::span(table.rows, static_cast<size_t>(table.count))) {
        texts.push_back(std::string(row.object) + "." + row.parameter + "=" + row.value);
    }
    return texts;
}

TEST_F(Settings, SetParam) {
    const auto table = std::make_unique<WifiParamTable>();
    const std::string text(300, 'x');
    for (const int count : {-1, 100}) { // not an index, full
        table->count = count;
        EXPECT_EQ(-1, SetParam(table.get(), "o", "p", "v"));
        EXPECT_EQ(count, table->count);
    }
    table->count = 99;
    EXPECT_EQ(-1, SetParam(nullptr, "o", "p", "v"));
    EXPECT_EQ(-1, SetParam(table.get(), nullptr, "p", "v"));
    EXPECT_EQ(-1, SetParam(table.get(), "o", nullptr, "v"));
    EXPECT_EQ(-1, SetParam(table.get(), "o", "p", nullptr));
    EXPECT_EQ(0, SetParam(table.get(), text.c_str(), text.c_str(), text.c_str()));
    EXPECT_EQ(text.substr(0, 254) + "." + text.substr(0, 254) + "=" + text.substr(0, 126), rows(*table).back());
}

// A snapshot: what it asks for, and the parameters that come without being asked for by name.
struct Snapshot {
    int (*take)(int, WifiParamTable *);
    std::string function, asked, unnamed, end;
};

const Snapshot kSnapshots[] = {
    {GetSsIdInfoFromFapiToBuff, "GetSsIdInfoFromFapiToBuff",
     "Device.WiFi.SSID.2(Enable,X_ZINTU_Active,SSID,BSSID,X_ZINTU_NetworkType) "
     "Device.WiFi.AccessPoint.2(SSIDAdvertisementEnabled,IsolationEnable,X_ZINTU_WebUIAccessPermit,"
     "X_ZINTU_InternetOnly) Device.WiFi.AccessPoint.2.X_LANTIQ_COM_Vendor(MACAddressControlEnabled) "
     "Device.WiFi.AccessPoint.2.Security",
     "ModeEnabled,X_ZINTU_EncryptionType,KeyPassphrase,RekeyingInterval,RadiusServerIPAddr,RadiusServerPort,"
     "RadiusSecret,X_ZINTU_Wep_Encryption,X_ZINTU_Wep_KeyType,WEPKey",
     ""},
    {GetWireInfoFromFapiToBuff, "GetWireInfoFromFapiToBuff",
     "Device.WiFi.Radio.2(Enable,Name,GuardInterval,BeaconPeriod,DTIMPeriod,FragmentationThreshold,RTSThreshold,"
     "IEEE80211hEnabled,RegulatoryDomain,AutoChannelEnable,Channel,OperatingStandards,OperatingChannelBandwidth,"
     "ExtensionChannel,TransmitPower,ChannelsInUse) "
     "Device.WiFi.AccessPoint.9(WMMEnable,UAPSDEnable,X_ZINTU_WMMOption,X_ZINTU_WMMAckPolicy) "
     "Device.WiFi.Radio.2.X_LANTIQ_COM_Vendor(Dot11dEnable,Dot11nProtection,WaveExplicitBeamforming,"
     "VhtSUbeamformerEnabled,VhtGuardInterval,WaveInterfererDetectionThreshold,CoexEnabled,"
     "WaveIgnore40MhzIntolerant,WaveMuOperation)",
     "", "return [0] \n"}};

TEST_F(Settings, Snapshots) {
    for (const Snapshot &snapshot : kSnapshots) {
        // Every parameter, each between others of almost its name; the rows that they make go behind those before.
        std::vector<std::string> params, expected = {"before.p=v"};
        const std::string names = replaced(snapshot.asked + "," + snapshot.unnamed, "Device[A-Za-z0-9_.]*|[ ()]", ",");
        for (const std::string &name : parts(replaced(names, ",+", "&"))) {
            if (!name.empty()) {
                params.insert(params.end(), {name + "x=1", "#" + name.substr(1) + "=2", name + "=3=" + kLong});
                expected.push_back("Device.A." + name + "=3=" + kLong.substr(0, 124));
            }
        }
        std::erase_if(expected, [](const std::string &row) {
            return row.starts_with("Device.A.Name=") || row.starts_with("Device.A.ChannelsInUse=");
        });
        platform().otherwise({0, {object("Device.A", params)}});
        const auto table = std::make_unique<WifiParamTable>();
        SetParam(table.get(), "before", "p", "v");
        EXPECT_EQ(0, snapshot.take(2, table.get()));
        EXPECT_EQ(expected, rows(*table));
        EXPECT_EQ("getValue 1/0x1100/2 " + snapshot.asked, platform().callTexts().back());
        const std::string function = tag(snapshot.function);
        const std::string start = function + "START_FUNCTION \n";
        EXPECT_EQ(start + (snapshot.end.empty() ? "" : function + snapshot.end), console());
        platform().otherwise({0, {object("Device.A", std::vector<std::string>(101, "Enable=1"))}});
        EXPECT_EQ(0, snapshot.take(2, table.get()));
        EXPECT_EQ(100, table->count);            // what does not fit is lost
        EXPECT_EQ(0, snapshot.take(2, nullptr)); // without a table, all is
        platform().otherwise({CALTOFAL_NO_MATCH, {}});
        table->count = 1;
        console();
        EXPECT_EQ(-1, snapshot.take(1, table.get()));
        EXPECT_EQ(1, table->count);
        EXPECT_TRUE(console().ends_with(refused(snapshot.function) +
                                        (snapshot.end.empty() ? "" : function + "return [-1] \n")));
        EXPECT_NE(std::string::npos, platform().callTexts().back().find(" Device.WiFi.AccessPoint.1("));
        EXPECT_EQ(4, platform().releases());
        resetPlatform();
    }
}

// A table of rows "object&parameter&value".
std::unique_ptr<WifiParamTable> table(const std::vector<std::string> &rows) {
    auto result = std::make_unique<WifiParamTable>();
    for (const std::string &row : rows) {
        auto cells = parts(row);
        cells.resize(3);
        EXPECT_EQ(0, SetParam(result.get(), cells[0].c_str(), cells[1].c_str(), cells[2].c_str()));
    }
    return result;
}

TEST_F(Settings, Compare) {
    const auto current = table({"A&p&1", "B&p&2", "B&p&3", "B&q", "C&r&" + kLong});
    struct Case {
        const char *object, *parameter;
        std::string value;
        int force, check;          // what CheckGetParam() answers
        const char *row, *setting; // what is traced of a setting that is queued
    };
    const char *absent = "2.%  <db don't have paramter> ";
    for (const Case &c : {Case{"A", "p", "1", 0, 0, nullptr, nullptr},
                          Case{"A", "p", "1", 0x100, 0, nullptr, nullptr}, // only the low byte forces
                          Case{"A", "p", "1", 1, 0, "1.%  <0> ", "A.p=>1"},
                          Case{"B", "p", "3", 0, 1, "1.%  <1> ", "B.p=>2"}, // the first row counts
                          Case{"B", "q", "x", 0, 1, "1.%  <3> ", "B.q=>"},
                          Case{"A", "q", "x", 0, -1, absent, "A.q=>x"}, // a parameter of another object
                          Case{"a", "p", "1", 0, -1, absent, "a.p=>1"},
                          // A stored value is cut, a wanted one is not.
                          Case{"C", "r", kLong.substr(0, 126), 0, 0, nullptr, nullptr}}) {
        const auto traced = [&](const std::string &function) {
            return c.row ? tag(function) + "\n\n  " + replaced(c.row, "%", function) + "[" + c.setting + "]\n\n" : "";
        };
        const auto changes = std::make_unique<WifiParamTable>();
        EXPECT_EQ(0, ComparOrSetParam(current.get(), changes.get(), c.object, c.parameter, c.value.c_str(), c.force));
        ASSERT_EQ(c.row ? 1 : 0, changes->count);
        EXPECT_EQ(traced("ComparOrSetParam"), console());
        if (c.row) {
            EXPECT_STREQ(c.object, changes->rows[0].object);
            EXPECT_EQ(c.value, changes->rows[0].value);
        }
        EXPECT_EQ(c.check, CheckGetParam(current.get(), c.object, c.parameter, c.value.c_str()));
        EXPECT_EQ(c.check == 0 ? "" : traced("CheckGetParam"), console());
    }
    EXPECT_EQ(1, CheckGetParam(current.get(), "C", "r", kLong.c_str()));
    current->count = 100;
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), current.get(), "A", "p", "2", 0)); // full
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), nullptr, "A", "p", "2", 0));
}

TEST_F(Settings, RequestedBeforeCurrent) {
    const auto requested = table({"A&p&1"});
    const auto current = table({"A&p&2", "A&q&3"});
    expectEach("p 1=0&p 2=1&q 3=0&q 4=1&r =-1", [&](const std::string &wanted) {
        return std::to_string(CheckGetReqDbAndCurDb(requested.get(), current.get(), "A", wanted.substr(0, 1).c_str(),
                                                    wanted.substr(2).c_str()));
    });
    takeConsole();
    EXPECT_EQ(-1, CheckGetReqDbAndCurDb(nullptr, current.get(), "A", "q", "3"));
    EXPECT_EQ(-1, CheckGetReqDbAndCurDb(requested.get(), nullptr, "A", "p", "1"));
    EXPECT_EQ(-1, CheckGetParam(current.get(), "A", nullptr, "1"));
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), current.get(), "A", "p", nullptr, 1));
    EXPECT_EQ("", takeConsole());
}

TEST_F(Settings, WriteBack) {
    const auto changes = table({"A&p&1", "B&p&2", "A&q&" + kLong, "C&r", "B&" + kLong + "&3"});
    const std::string cut = kLong.substr(0, 126);
    const std::string sets = " 2/0x4/2 A(p=1,q=" + cut + ") B(p=2," + cut + "=3) C(r=)";
    const auto expectSent = [](const std::string &text, MsgHeader &header) {
        EXPECT_EQ(text, platform().callTexts().back());
        faltocal_finalize(&header);
        header = {};
        platform().on("C", Reply{});
    };
    MsgHeader header = {};
    for (const int onlyDb : {0, 1}) {
        platform().on("C", Reply{});
        EXPECT_EQ(0, faltocal_fromDB(&header, changes.get(), 0, onlyDb));
        EXPECT_EQ(4U, platform().calls().back().objects[1].subOper);
        expectSent((onlyDb != 0 ? "setValueToDb" : "setValue") + sets, header);
    }
    const std::string traced = replaced(takeConsole(), "\n\n  faltocal_fromDB:[0-9]+ ==> ", "\n");
    EXPECT_TRUE(
        traced.starts_with("\nchange object 0:A\n\n\nchange object 1:B\n\n\nchange object 2:C\n\n\n<0> A.p=>1\n\n"
                           "\n<1> A.q=>" +
                           cut + "\n\n\n<0> B.p=>2\n\n"));
    // More to come: nothing is sent until the caller does.
    const size_t calls = platform().calls().size();
    EXPECT_EQ(0, faltocal_fromDB(&header, changes.get(), 1, 0));
    EXPECT_EQ(calls, platform().calls().size());
    EXPECT_EQ(0, faltocal_send_main_multi_obj(&header, "query", "set_only_db", "set", 0));
    expectSent("setValueToDb" + sets, header);
    // One object starts the message: it is applied all the same.
    EXPECT_EQ(0, faltocal_fromDB(&header, table({"C&r&1"}).get(), 0, 1));
    expectSent("setValue 2/0x4/2 C(r=1)", header);
}

TEST_F(Settings, WriteBackLimits) {
    MsgHeader header = {};
    const auto none = table({});
    EXPECT_EQ(0, faltocal_fromDB(&header, none.get(), 0, 0));
    EXPECT_EQ(-1, faltocal_fromDB(nullptr, none.get(), 0, 0));
    EXPECT_EQ(-1, faltocal_fromDB(&header, nullptr, 0, 0));
    EXPECT_EQ("", takeConsole());
    EXPECT_TRUE(platform().calls().empty());
    EXPECT_EQ(-1, faltocal_fromDB(&header, table({"A&p&1", "B&p&1"}).get(), 0, 0)); // refused
    EXPECT_TRUE(console().ends_with(refused("faltocal_fromDB")));
    faltocal_finalize(&header);
    header = {};
    std::vector<std::string> rows;
    for (int i = 0; i < 100; ++i) {
        rows.push_back("Device.Object" + std::to_string(i % 50) + "&p&v");
    }
    platform().on("Device.Object49", Reply{});
    EXPECT_EQ(0, faltocal_fromDB(&header, table(rows).get(), 0, 0));
    EXPECT_EQ(50U, platform().calls().back().objects.size());
    faltocal_finalize(&header);
}

} // namespace
