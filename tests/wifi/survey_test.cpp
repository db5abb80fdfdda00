// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Survey = WifiTest;

constexpr char kSurveyFile[] = "/tmp/wlan_wave/wlan0_scan_by_User.result";

// What reading a file leaves: its entries, and what is printed about the lines that are not entries.
struct Result {
    std::string entries, printed;
};

std::string text(const SiteSurveyEntry &e) {
    std::string text;
    for (const char *column : {e.ssid, e.security, e.encryption, e.macaddr, e.phymode, e.sideband}) {
        text += column + std::string("|");
    }
    for (const int32_t number : {e.channel, e.rssi, e.bandwidth, e.product}) {
        text += std::to_string(number) + "|";
    }
    return text + "\n";
}

Result read(const char *filter) {
    SiteSurveyList list = {0, nullptr};
    testing::internal::CaptureStdout();
    const int count = GetSiteSurveyList(kSurveyFile, &list, filter);
    Result result = {"", testing::internal::GetCapturedStdout()};
    for (int i = 0; i < count; ++i) {
        result.entries += text(list.entries[i]);
    }
    free(list.entries);
    return result;
}

// The same by the plain scan format.
Result readByScan(const std::string &content, const std::string &filter) {
    Result result;
    size_t count = 0;
    const size_t room = linesOf(content, 1000).size();
    for (const std::string &line : linesOf(content, 128)) {
        char c[10][128] = {};
        sscanf(line.c_str(), "%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]\t%[^\t]", c[0],
               c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8], c[9]);
        if (!*c[9]) {
            char text[1500];
            snprintf(
                text, sizeof(text),
                "scan[%zu] ssid:%s channel:%s rssi:%s security:%s encryption:%s macaddr:%s bandwidth:%s phymode:%s "
                "sideband:%s product:%s\n",
                count, c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8], c[9]);
            result.printed += text;
        } else if ((filter.empty() || filter == c[0]) && count < room) {
            for (const int i : {0, 3, 4, 5, 7, 8}) {
                result.entries += c[i] + std::string("|");
            }
            for (const int i : {1, 2, 6, 9}) {
                result.entries += std::to_string(atoi(c[i])) + "|";
            }
            result.entries += "\n";
            ++count;
        }
    }
    return result;
}

TEST_F(Survey, LikeTheScanFormat) {
    constexpr std::string_view kCharacters("\t\t\t\t15x \n\n\n\r\v\f\x01\x08\xff\0", 18);
    const auto pieces = parts("Home&-5&" + std::string(50, 'y') + "&" + std::string(1000, 'z') +
                              "&Home\t+7\t-123456789\tWPA2\tAES\tm\t1234567890\tn\tupper\t99999999999999999999\n"
                              "&Home\t-2147483648\t--5\tWPA2\tAES \tm\t 007\tn\tupper\t12x"
                              "&Home Net\tx\t-\tWPA2\tAES\tm\t5 6\tn\tupper\t\n1\n");
    std::mt19937 random(3); // NOLINT: the same files in every run
    for (int i = 0; i < 150; ++i) {
        const std::string content = randomText(random, kCharacters, pieces, random() % 400);
        putFile(kSurveyFile, content);
        ASSERT_EQ(linesOf(content, 1000).size(), GetFileLineCnt(kSurveyFile)) << ::testing::PrintToString(content);
        const char *filter = i % 3 == 0 ? "Home" : "";
        const Result expected = readByScan(content, filter);
        const Result result = read(filter);
        ASSERT_EQ(expected.entries, result.entries) << ::testing::PrintToString(content);
        ASSERT_EQ(expected.printed, result.printed) << ::testing::PrintToString(content);
        takeConsole();
    }
}

TEST_F(Survey, LongLineNeverLeavesTheArray) {
    const std::string entry = "s\t6\t-60\tWPA2\tAES\tm\t40\tn\tupper\t1";
    std::string content; // one line that is read in pieces, each of which is a whole entry
    for (int i = 0; i < 5; ++i) {
        content += std::string(127 - entry.size(), 'l') + entry;
    }
    putFile(kSurveyFile, content + "\n");
    EXPECT_EQ(1, std::ranges::count(read("").entries, '\n'));
}

TEST_F(Survey, CountThatIsNoIndex) {
    putFile(kSurveyFile, "s\t6\t-60\tWPA2\tAES\tm\t40\tn\tupper\t1\n");
    SiteSurveyList list = {-1, nullptr};
    EXPECT_EQ(-1, GetSiteSurveyList(kSurveyFile, &list, ""));
    free(list.entries);
}

TEST_F(Survey, ArrayThatCannotBeAddressed) {
    putFile(kSurveyFile, std::string(5478276, '\n')); // entries for these take 304 bytes more than 32 bits can tell
    failOpen(2);
    SiteSurveyList list = {0, nullptr};
    EXPECT_EQ(0, GetSiteSurveyList(kSurveyFile, &list, ""));
    const bool allocated = list.entries != nullptr;
    EXPECT_TRUE(console().ends_with(allocated ? " does not exist\n" : "fail to alloc memory"));
    EXPECT_FALSE(allocated && sizeof(size_t) == 4);
    free(list.entries);
}

TEST_F(Survey, ReportsAndFailures) {
    const std::string function = tag("GetSiteSurveyList");
    const std::string start = function + "START_FUNCTION \n";
    putFile(kSurveyFile, "Home\t6\t-60\tWPA2\t\t00:11:22:33:44:55\t40\tn\tupper\t1\n");
    SiteSurveyEntry untouched;
    SiteSurveyList list = {5, &untouched};
    for (const auto &[path, report] :
         {std::pair<const char *, const char *>{nullptr, "s_file_path is invlid parameter \n"},
          {"", "s_file_path is invlid parameter \n"},
          {"/tmp/wlan_wave/none", "/tmp/wlan_wave/none does not exist of line count zero \n"}}) {
        EXPECT_EQ(5, GetSiteSurveyList(path, &list, ""));
        EXPECT_EQ(start + function + report, console());
        EXPECT_EQ(0, GetFileLineCnt(path));
    }
    EXPECT_EQ(&untouched, list.entries);
    failOpen(2); // it vanishes once its lines are counted
    EXPECT_EQ(5, GetSiteSurveyList(kSurveyFile, &list, ""));
    EXPECT_EQ(start + function + "/tmp/wlan_wave/%s_scan_by_User.result does not exist\n", console());
    EXPECT_NE(&untouched, list.entries); // the caller's to free
    free(list.entries);
    EXPECT_EQ("", read("").entries);
    EXPECT_EQ(start + function + "invalid scan result entry\n", console());
}

TEST_F(Survey, Files) {
    putFile("/tmp/wlan_wave/all", "1\n2\n3\n");
    EXPECT_EQ(3, CombineScanResultFiles("a b", "c", "/tmp/wlan_wave/all"));
    EXPECT_EQ(3, CombineScanResultFiles("", "c", "/tmp/wlan_wave/all"));
    EXPECT_EQ(0, CombineScanResultFiles(nullptr, "c", "d"));
    EXPECT_EQ(0, CombineScanResultFiles("a", "", "d"));
    EXPECT_EQ(0, CombineScanResultFiles("a", "c", ""));
    removeFile("/opt/lantiq/wave/confs");
    EXPECT_EQ(0, Remove_Confs_File()); // runs nothing
    EXPECT_EQ(2U, shell().commands.size());
    putFile("/opt/lantiq/wave/confs", "");
    EXPECT_EQ(0, Remove_Confs_File());
    EXPECT_EQ((std::vector<std::string>{"cat a b > /tmp/wlan_wave/all; cat c >> /tmp/wlan_wave/all",
                                        "cat  > /tmp/wlan_wave/all; cat c >> /tmp/wlan_wave/all",
                                        "rm -rf /opt/lantiq/wave/confs/*"}),
              shell().commands);
    CombineScanResultFiles(std::string(1100, 'x').c_str(), "c", "d");
    EXPECT_EQ(1023U, shell().commands.back().size());
}

} // namespace
