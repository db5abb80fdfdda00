// SPDX-License-Identifier: MIT
// A survey's result file, read by the library, by the plain scan format and by a bare splitter.
#pragma once

#include "caltofal.h"

#include <string>
#include <string_view>
#include <vector>

namespace bench {

// A result file of a number of lines, there as long as the object is.
class SurveyFile {
  public:
    explicit SurveyFile(int lines);
    ~SurveyFile();
    SurveyFile(const SurveyFile &) = delete;
    SurveyFile &operator=(const SurveyFile &) = delete;

    [[nodiscard]] const char *path() const { return path_; }
    [[nodiscard]] const std::string &text() const { return text_; }
    [[nodiscard]] int lines() const { return lines_; }

  private:
    int lines_;
    std::string text_;
    char path_[32] = "/tmp/caltofal-survey-XXXXXX";
};

// What a reader works on. The list's array is allocated by the reader.
struct SurveyRun {
    explicit SurveyRun(const SurveyFile &from) : file(from) {}
    ~SurveyRun();
    SurveyRun(const SurveyRun &) = delete;
    SurveyRun &operator=(const SurveyRun &) = delete;

    const SurveyFile &file;
    SiteSurveyList list = {};
};

// One way to read a file, as a page's side.
struct SurveyReader {
    const char *name;
    int (*read)(void *run); // takes a SurveyRun and fills its list; the number of entries
};

// "library", and those that it is held against: "scan" and "split".
const std::vector<SurveyReader> &surveyReaders();
const SurveyReader &surveyReader(std::string_view name);

// Whether all readers make the same list of a file; says on standard error which do not.
bool surveyReadersAgree(const SurveyFile &file);

} // namespace bench
