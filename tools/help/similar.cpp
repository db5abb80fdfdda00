// SPDX-License-Identifier: MIT
#include "help/similar.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace help {
namespace {

constexpr size_t kShownMax = 3;
constexpr size_t kLengthMax = 256;

char lower(char c) {
    return static_cast<char>(tolower(static_cast<unsigned char>(c)));
}

// Letters to put in, take out, replace or swap with the next one; upper and lower case are the same.
size_t distance(const std::string &from, const std::string &to) {
    std::vector<size_t> before;
    std::vector<size_t> last;
    std::vector<size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (size_t i = 1; i <= from.size(); ++i) {
        before = std::exchange(last, row);
        row[0] = i;
        for (size_t j = 1; j <= to.size(); ++j) {
            const bool same = lower(from[i - 1]) == lower(to[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            const bool swapped =
                i > 1 && j > 1 && lower(from[i - 1]) == lower(to[j - 2]) && lower(from[i - 2]) == lower(to[j - 1]);
            if (swapped) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
    }
    return row.back();
}

} // namespace

std::vector<std::string> similar(const std::string &word, const std::vector<std::string> &known) {
    const size_t most = 1 + word.size() / 4;
    std::vector<std::pair<size_t, std::string>> near;
    for (const std::string &candidate : known) {
        const bool begins = !word.empty() && candidate.starts_with(word);
        const bool tooLong = std::max(word.size(), candidate.size()) > kLengthMax;
        const size_t away = begins ? 0 : tooLong ? most + 1 : distance(word, candidate);
        if (away <= most && away < candidate.size()) {
            near.emplace_back(away, candidate);
        }
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    std::vector<std::string> result;
    for (size_t i = 0; i < std::min(near.size(), kShownMax); ++i) {
        result.push_back(near[i].second);
    }
    return result;
}

std::string didYouMean(const std::string &word, const std::vector<std::string> &known) {
    std::string result;
    for (const std::string &candidate : similar(word, known)) {
        result += (result.empty() ? " (did you mean " : " or ") + candidate;
    }
    return result.empty() ? "" : result + "?)";
}

} // namespace help
