// SPDX-License-Identifier: MIT
// The result file of a survey: cut into lines, and these into columns.
#include "lines.h"
#include "wifi/driver/line_blocks.h"
#include "wifi/driver/survey_line.h"

#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

// The lines that the library cuts out of a file.
std::vector<std::string> linesOf(const std::string &content) {
    const int memory = memfd_create("survey", MFD_CLOEXEC);
    fuzz::require(write(memory, content.data(), content.size()) == static_cast<ssize_t>(content.size()), "no memory");
    std::vector<std::string> lines;
    wifi::File file;
    fuzz::require(file.open(("/proc/self/fd/" + std::to_string(memory)).c_str()), "no file");
    wifi::LineBlocks<wifi::kLineSize> blocks(file);
    while (const char *line = blocks.next()) {
        lines.emplace_back(line);
    }
    close(memory);
    return lines;
}

void checkEntry(const wifi::SurveyLine &line) {
    SiteSurveyEntry entry;
    wifi::fillSurveyEntry(line, entry);
    for (const char *text :
         {entry.ssid, entry.security, entry.encryption, entry.macaddr, entry.phymode, entry.sideband}) {
        fuzz::require(strnlen(text, 127) < 127, "a text of more than 126 characters");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    bytes.text(130); // inputs begin with a filter
    const std::string content = bytes.rest();
    std::vector<std::string> pieces;
    fuzz::eachLine(content, [&](const char *line) { pieces.emplace_back(line); });
    fuzz::require(linesOf(content) == pieces, "other lines than fgets() reads");
    for (const std::string &piece : pieces) {
        fuzz::Text text(piece);
        const wifi::SurveyLine line = wifi::splitSurveyLine(text.get());
        if (line.isComplete()) {
            checkEntry(line);
        }
    }
    return 0;
}
