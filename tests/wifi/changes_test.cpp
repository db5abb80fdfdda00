// SPDX-License-Identifier: MIT
#include "wifi_support.h"

#include <regex>

using namespace test;

namespace {

using Changes = WifiTest;

using Row = std::array<std::string, 3>;

std::unique_ptr<WifiParamTable> table(const std::vector<Row> &rows) {
    auto result = std::make_unique<WifiParamTable>();
    for (const auto &[object, parameter, value] : rows) {
        EXPECT_EQ(0, SetParam(result.get(), object.c_str(), parameter.c_str(), value.c_str()));
    }
    return result;
}

const std::string kLong(200, 'v');

TEST_F(Changes, Compare) {
    const auto current = table({{"A", "p", "1"}, {"B", "p", "2"}, {"B", "p", "3"}, {"B", "q", ""}, {"C", "r", kLong}});
    const auto one = [](const std::string &function, int row, const std::string &text) {
        return tag(function) + "\n\n  1." + function + "  <" + std::to_string(row) + "> [" + text + "]\n\n";
    };
    const auto two = [](const std::string &function, const std::string &text) {
        return tag(function) + "\n\n  2." + function + "  <db don't have paramter> [" + text + "]\n\n";
    };
    struct Case {
        const char *object, *parameter;
        std::string value;
        int force, check; // what CheckGetParam() answers
        bool queued;
        int row;
        const char *traced;
    };
    const Case cases[] = {
        {"A", "p", "1", 0, 0, false, 0, nullptr},
        {"A", "p", "1", 0x100, 0, false, 0, nullptr}, // only the low byte forces
        {"A", "p", "1", 1, 0, true, 0, "A.p=>1"},
        {"B", "p", "3", 0, 1, true, 1, "B.p=>2"}, // the first row counts
        {"B", "q", "x", 0, 1, true, 3, "B.q=>"},
        {"A", "q", "x", 0, -1, true, -1, "A.q=>x"}, // a parameter of another object
        {"a", "p", "1", 0, -1, true, -1, "a.p=>1"},
        {"C", "r", kLong.substr(0, 126), 0, 0, false, 0, nullptr}, // a stored value is cut, a wanted one is not
    };
    for (const Case &c : cases) {
        const auto changes = std::make_unique<WifiParamTable>();
        EXPECT_EQ(0, ComparOrSetParam(current.get(), changes.get(), c.object, c.parameter, c.value.c_str(), c.force));
        ASSERT_EQ(c.queued ? 1 : 0, changes->count);
        const auto traced = [&](const std::string &function) {
            return !c.traced ? "" : c.row < 0 ? two(function, c.traced) : one(function, c.row, c.traced);
        };
        EXPECT_EQ(traced("ComparOrSetParam"), console());
        if (c.queued) {
            EXPECT_STREQ(c.object, changes->rows[0].object);
            EXPECT_EQ(c.value, changes->rows[0].value);
        }
        EXPECT_EQ(c.check, CheckGetParam(current.get(), c.object, c.parameter, c.value.c_str()));
        EXPECT_EQ(c.check == 0 ? "" : traced("CheckGetParam"), console());
    }
    const auto full = std::make_unique<WifiParamTable>();
    full->count = 100;
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), full.get(), "A", "p", "2", 0));
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), nullptr, "A", "p", "2", 0));
    EXPECT_EQ(1, CheckGetParam(current.get(), "C", "r", kLong.c_str()));
}

TEST_F(Changes, RequestedBeforeCurrent) {
    const auto requested = table({{"A", "p", "1"}});
    const auto current = table({{"A", "p", "2"}, {"A", "q", "3"}});
    struct Case {
        const char *parameter, *value;
        int result;
    };
    for (const Case &c :
         {Case{"p", "1", 0}, Case{"p", "2", 1}, Case{"q", "3", 0}, Case{"q", "4", 1}, Case{"r", "", -1}}) {
        EXPECT_EQ(c.result, CheckGetReqDbAndCurDb(requested.get(), current.get(), "A", c.parameter, c.value));
    }
    takeConsole();
    EXPECT_EQ(-1, CheckGetReqDbAndCurDb(nullptr, current.get(), "A", "q", "3"));
    EXPECT_EQ(-1, CheckGetReqDbAndCurDb(requested.get(), nullptr, "A", "p", "1"));
    EXPECT_EQ(-1, CheckGetParam(current.get(), "A", nullptr, "1"));
    EXPECT_EQ(-1, ComparOrSetParam(current.get(), current.get(), "A", "p", nullptr, 1));
    EXPECT_EQ("", takeConsole());
}

TEST_F(Changes, WriteBack) {
    const auto changes =
        table({{"A", "p", "1"}, {"B", "p", "2"}, {"A", "q", kLong}, {"C", "r", ""}, {"B", kLong, "3"}});
    const std::string cut = kLong.substr(0, 126);
    const std::string sets = " 2/0x4/2 A(p=1,q=" + cut + ") B(p=2," + cut + "=3) C(r=)";
    for (const int onlyDb : {0, 1}) {
        platform().on("C", Reply{});
        MsgHeader header = {};
        EXPECT_EQ(0, faltocal_fromDB(&header, changes.get(), 0, onlyDb));
        EXPECT_EQ((onlyDb != 0 ? "setValueToDb" : "setValue") + sets, platform().callTexts().back());
        EXPECT_EQ(4U, platform().calls().back().objects[1].subOper);
        faltocal_finalize(&header);
    }
    const std::string traced = std::regex_replace(takeConsole(), std::regex("fromDB:[0-9]+"), "fromDB:0");
    const std::string start = "\n\n  faltocal_fromDB:0 ==> ";
    EXPECT_TRUE(traced.starts_with(start + "change object 0:A\n\n" + start + "change object 1:B\n\n" + start +
                                   "change object 2:C\n\n" + start + "<0> A.p=>1\n\n" + start + "<1> A.q=>" + cut +
                                   "\n\n" + start + "<0> B.p=>2\n\n"));

    // More to come: nothing is sent until the caller does.
    const size_t calls = platform().calls().size();
    platform().on("C", Reply{});
    MsgHeader header = {};
    EXPECT_EQ(0, faltocal_fromDB(&header, changes.get(), 1, 0));
    EXPECT_EQ(calls, platform().calls().size());
    EXPECT_EQ(0, faltocal_send_main_multi_obj(&header, "query", "set_only_db", "set", 0));
    EXPECT_EQ("setValueToDb" + sets, platform().callTexts().back());
    faltocal_finalize(&header);

    // One object starts the message: it is applied all the same.
    platform().on("C", Reply{});
    header = {};
    EXPECT_EQ(0, faltocal_fromDB(&header, table({{"C", "r", "1"}}).get(), 0, 1));
    EXPECT_EQ("setValue 2/0x4/2 C(r=1)", platform().callTexts().back());
    faltocal_finalize(&header);
}

TEST_F(Changes, WriteBackFailures) {
    MsgHeader header = {};
    const auto none = table({});
    EXPECT_EQ(0, faltocal_fromDB(&header, none.get(), 0, 0));
    EXPECT_EQ(-1, faltocal_fromDB(nullptr, none.get(), 0, 0));
    EXPECT_EQ(-1, faltocal_fromDB(&header, nullptr, 0, 0));
    EXPECT_EQ("", takeConsole());
    EXPECT_TRUE(platform().calls().empty());

    EXPECT_EQ(-1, faltocal_fromDB(&header, table({{"A", "p", "1"}}).get(), 0, 0)); // refused
    EXPECT_TRUE(console().ends_with(refused("faltocal_fromDB")));
    faltocal_finalize(&header);

    header = {};
    std::vector<Row> rows(100);
    for (size_t i = 0; i < rows.size(); ++i) {
        rows[i] = {"Device.Object" + std::to_string(i % 50), "p" + std::to_string(i), "v"};
    }
    platform().on("Device.Object49", Reply{});
    EXPECT_EQ(0, faltocal_fromDB(&header, table(rows).get(), 0, 0));
    EXPECT_EQ(50U, platform().calls().back().objects.size());
    faltocal_finalize(&header);
}

} // namespace
