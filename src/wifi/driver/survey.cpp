// SPDX-License-Identifier: MIT
// Reading a survey's result file.
#include "wifi/driver/file.h"
#include "wifi/driver/line_blocks.h"
#include "wifi/driver/survey_line.h"
#include "wifi/wifi_trace.h"

#include <cstdlib>
#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr char kFunction[] = "GetSiteSurveyList";
constexpr size_t kSsidCompared = 127;

// Collects the lines of one file.
class SurveyReader {
  public:
    // `capacity` entries fit into the list; `ssidFilter` is the one network wanted, or nullptr.
    SurveyReader(SiteSurveyList &list, int capacity, const char *ssidFilter)
        : list_(list), capacity_(capacity), filter_(ssidFilter) {}

    void addLine(char *text) {
        const SurveyLine line = splitSurveyLine(text);
        if (!line.isComplete()) {
            report(line);
        } else if (isWanted(line.column[SurveyLine::kSsid].data) && list_.count >= 0 && list_.count < capacity_) {
            fillSurveyEntry(line, list_.entries[list_.count++]);
        }
    }

  private:
    [[nodiscard]] bool isWanted(const char *ssid) const {
        return !filter_ || strncmp(ssid, filter_, kSsidCompared) == 0;
    }

    void report(const SurveyLine &line) const {
        traceVola({Unit::WifiUtil, __LINE__, kFunction}, "invalid scan result entry\n");
        const SurveyLine::Text *column = line.column;
        printf("scan[%d] ssid:%s channel:%s rssi:%s security:%s encryption:%s macaddr:%s bandwidth:%s phymode:%s "
               "sideband:%s product:%s\n",
               list_.count, column[0].data, column[1].data, column[2].data, column[3].data, column[4].data,
               column[5].data, column[6].data, column[7].data, column[8].data, column[9].data);
    }

    SiteSurveyList &list_;
    int capacity_;
    const char *filter_;
};

// nullptr when memory is short, also where so many entries could not be addressed.
SiteSurveyEntry *allocateEntries(size_t count) {
    constexpr size_t kMost = PTRDIFF_MAX / sizeof(SiteSurveyEntry);
    return count <= kMost ? static_cast<SiteSurveyEntry *>(malloc(count * sizeof(SiteSurveyEntry))) : nullptr;
}

// Not inlined: its block of 4 KB and that of the line count would both stand on the caller's stack.
[[gnu::noinline]] void readLines(File &file, SurveyReader &reader) {
    LineBlocks<kLineSize> blocks(file);
    while (char *line = blocks.next()) {
        reader.addLine(line);
    }
}

} // namespace

int GetSiteSurveyList(const char *path, SiteSurveyList *list, const char *ssidFilter) {
    traceStart();
    if (!path || !*path) {
        traceVola(Unit::WifiUtil, "s_file_path is invlid parameter \n");
        return list->count;
    }
    const int lines = GetFileLineCnt(path);
    if (lines == 0) {
        traceVola(Unit::WifiUtil, "%s does not exist of line count zero \n", path);
        return list->count;
    }
    list->entries = allocateEntries(static_cast<size_t>(lines));
    if (!list->entries) {
        traceVola(Unit::WifiUtil, "fail to alloc memory");
        return list->count;
    }
    File file;
    if (!file.open(path)) {
        traceVola(Unit::WifiUtil, "%s does not exist\n", "/tmp/wlan_wave/%s_scan_by_User.result");
        return list->count;
    }
    SurveyReader reader(*list, lines, *ssidFilter ? ssidFilter : nullptr);
    readLines(file, reader);
    return list->count;
}
