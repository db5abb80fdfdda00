// SPDX-License-Identifier: MIT
#include "survey_parse.h"
#include "wifi_support.h"

using namespace test;

namespace {

using Survey = WifiTest;

constexpr char kFile[] = "/tmp/wlan_wave/wlan0_scan_by_User.result";

std::string join(const char *const (&columns)[10]) {
    std::string text;
    for (const char *column : columns) {
        text += column + std::string("|");
    }
    return text;
}

std::string splitByScan(const char *line) {
    char c[10][128] = {};
    sscanf(line, "%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]", c[0], c[1], c[2],
           c[3], c[4], c[5], c[6], c[7], c[8], c[9]);
    return join({c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8], c[9]});
}

TEST_F(Survey, LikeTheScanFormat) {
    const std::vector<std::string> pieces = {"\t",
                                             "\t",
                                             "\t",
                                             "\t",
                                             "Home Net",
                                             "1",
                                             "-5",
                                             " ",
                                             "\n",
                                             "\r",
                                             "\v\f",
                                             "x",
                                             "\x01",
                                             "\x08",
                                             "\xff",
                                             std::string(1, '\0'),
                                             std::string(50, 'y')};
    std::mt19937 random(3); // NOLINT: the same lines in every run
    for (int i = 0; i < 4000; ++i) {
        for (std::string &line : linesOf(randomText(random, pieces, random() % 60))) {
            const std::string expected = splitByScan(line.c_str());
            ASSERT_EQ(expected, join(wifi::splitSurveyLine(std::string(line).data()).column))
                << ::testing::PrintToString(line);
        }
    }
}

TEST_F(Survey, ColumnsBecomeFields) {
    const std::string longText(127, 't');
    for (const char *number : {"0", "-65", "2437", "+7", "123456789", "1234567890", "-2147483648", "12x", "x", "-",
                               "--5", "007", "5 6", "99999999999999999999"}) {
        const wifi::SurveyLine line = {{longText.c_str(), number, number, "s", "e", "m", number, "p", "b", number}};
        SiteSurveyEntry entry;
        memset(&entry, 'x', sizeof(entry));
        wifi::fillSurveyEntry(line, entry);
        EXPECT_EQ(longText.substr(1), entry.ssid);
        EXPECT_STREQ("s", entry.security);
        EXPECT_STREQ("e", entry.encryption);
        EXPECT_STREQ("m", entry.macaddr);
        EXPECT_STREQ("p", entry.phymode);
        EXPECT_STREQ("b", entry.sideband);
        for (const int32_t value : {entry.channel, entry.rssi, entry.bandwidth, entry.product}) {
            EXPECT_EQ(atoi(number), value) << number;
        }
    }
}

std::string line(const std::string &ssid, const std::string &encryption = "AES") {
    return ssid + "\t6\t-60\tWPA2\t" + encryption + "\t00:11:22:33:44:55\t40\tn\tupper\t1\n";
}

struct Freed {
    explicit Freed(SiteSurveyList &list) : entries(list.entries) {}
    ~Freed() { free(entries); }
    SiteSurveyEntry *entries;
};

TEST_F(Survey, ListAndReport) {
    putFile(kFile, line("Home Net") + line("Office", "") + "\n" + line("Home2") + line("Home"));
    const std::string start = tag("GetSiteSurveyList") + "START_FUNCTION \n";
    SiteSurveyList list = {0, nullptr};
    testing::internal::CaptureStdout();
    EXPECT_EQ(3, GetSiteSurveyList(kFile, &list, ""));
    EXPECT_EQ("scan[1] ssid:Office channel:6 rssi:-60 security:WPA2 encryption:00:11:22:33:44:55 macaddr:40 "
              "bandwidth:n phymode:upper sideband:1\n product:\n"
              "scan[1] ssid:\n channel: rssi: security: encryption: macaddr: bandwidth: phymode: sideband: product:\n",
              testing::internal::GetCapturedStdout());
    const std::string invalid = tag("GetSiteSurveyList") + "invalid scan result entry\n";
    EXPECT_EQ(start + invalid + invalid, console());
    const Freed all(list);
    EXPECT_STREQ("Home Net", list.entries[0].ssid);
    EXPECT_EQ(1, list.entries[2].product); // the newline behind it does no harm

    list = {0, nullptr};
    putFile(kFile, line("Home2") + line("Home") + line("home") + line("Home"));
    EXPECT_EQ(2, GetSiteSurveyList(kFile, &list, "Home"));
    const Freed filtered(list);
    EXPECT_STREQ("Home", list.entries[0].ssid);
}

TEST_F(Survey, LongLineNeverLeavesTheArray) {
    // One line that is read in pieces, each of which is a whole entry.
    std::string content;
    for (int i = 0; i < 5; ++i) {
        const std::string entry = line("s");
        content += std::string(127 - (entry.size() - 1), 'l') + entry.substr(0, entry.size() - 1);
    }
    putFile(kFile, content + "\n");
    SiteSurveyList list = {0, nullptr};
    testing::internal::CaptureStdout();
    EXPECT_EQ(1, GetSiteSurveyList(kFile, &list, ""));
    testing::internal::GetCapturedStdout();
    free(list.entries);
}

TEST_F(Survey, Failures) {
    const std::string function = tag("GetSiteSurveyList");
    const std::string start = function + "START_FUNCTION \n" + function;
    SiteSurveyEntry untouched;
    SiteSurveyList list = {5, &untouched};
    for (const char *path : {static_cast<const char *>(nullptr), ""}) {
        EXPECT_EQ(5, GetSiteSurveyList(path, &list, ""));
        EXPECT_EQ(start + "s_file_path is invlid parameter \n", console());
    }
    EXPECT_EQ(5, GetSiteSurveyList("/tmp/wlan_wave/none", &list, ""));
    EXPECT_EQ(start + "/tmp/wlan_wave/none does not exist of line count zero \n", console());
    EXPECT_EQ(&untouched, list.entries);

    putFile(kFile, line("Home"));
    failOpen(2); // it vanishes once its lines are counted
    EXPECT_EQ(5, GetSiteSurveyList(kFile, &list, ""));
    EXPECT_EQ(start + "/tmp/wlan_wave/%s_scan_by_User.result does not exist\n", console());
    EXPECT_NE(&untouched, list.entries);
    free(list.entries);
}

TEST_F(Survey, LineCount) {
    const std::pair<std::string, int> rows[] = {{"", 0},
                                                {"a", 1},
                                                {"a\n", 1},
                                                {"\n\nb", 3},
                                                {std::string(999, 'x'), 1},
                                                {std::string(998, 'x') + "\n", 1},
                                                {std::string(999, 'x') + "\n", 2},
                                                {std::string(2000, 'x') + "\n", 3}};
    for (const auto &[content, count] : rows) {
        putFile(kFile, content);
        EXPECT_EQ(count, GetFileLineCnt(kFile)) << content.size();
    }
    EXPECT_EQ(0, GetFileLineCnt(""));
    EXPECT_EQ(0, GetFileLineCnt(nullptr));
    EXPECT_EQ(0, GetFileLineCnt("/tmp/wlan_wave/none"));
}

TEST_F(Survey, Combine) {
    putFile("/tmp/wlan_wave/all", "1\n2\n3\n");
    EXPECT_EQ(3, CombineScanResultFiles("a b", "c", "/tmp/wlan_wave/all"));
    EXPECT_EQ(3, CombineScanResultFiles("", "c", "/tmp/wlan_wave/all"));
    EXPECT_EQ((std::vector<std::string>{"cat a b > /tmp/wlan_wave/all; cat c >> /tmp/wlan_wave/all",
                                        "cat  > /tmp/wlan_wave/all; cat c >> /tmp/wlan_wave/all"}),
              shell().commands);
    EXPECT_EQ(0, CombineScanResultFiles(nullptr, "c", "d"));
    EXPECT_EQ(0, CombineScanResultFiles("a", "", "d"));
    EXPECT_EQ(0, CombineScanResultFiles("a", "c", ""));
    EXPECT_EQ(2U, shell().commands.size());
    CombineScanResultFiles(std::string(1100, 'x').c_str(), "c", "d");
    EXPECT_EQ(1023U, shell().commands.back().size());
}

TEST_F(Survey, RemoveConfs) {
    removeFile("/opt/lantiq/wave/confs");
    EXPECT_EQ(0, Remove_Confs_File());
    EXPECT_TRUE(shell().commands.empty());
    putFile("/opt/lantiq/wave/confs", "");
    EXPECT_EQ(0, Remove_Confs_File());
    EXPECT_EQ(std::vector<std::string>{"rm -rf /opt/lantiq/wave/confs/*"}, shell().commands);
}

} // namespace
