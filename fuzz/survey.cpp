// SPDX-License-Identifier: MIT
// The result file of a survey.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const std::string filter = bytes.text(130);
    const std::string path = "/tmp/wlan_wave/fuzz";
    test::putFile(path, bytes.rest());
    SiteSurveyList list = {};
    const int lines = GetFileLineCnt(path.c_str());
    const int count = GetSiteSurveyList(path.c_str(), &list, filter.c_str());
    fuzz::require(count == list.count && count >= 0 && count <= lines, "more networks than lines");
    for (const SiteSurveyEntry *entry = list.entries; entry != list.entries + count; ++entry) {
        for (const char *text :
             {entry->ssid, entry->security, entry->encryption, entry->macaddr, entry->phymode, entry->sideband}) {
            fuzz::require(strnlen(text, 127) < 127, "a text of more than 126 characters");
        }
    }
    free(list.entries);
    return 0;
}
