// SPDX-License-Identifier: MIT
#include "caltofal/typed_words.h"

#include "caltofal/command.h"

#include <algorithm>
#include <iterator>

namespace cli {
namespace {

using Words = std::vector<std::string>;

constexpr std::string_view kWithValue[] = {"-g", "--gateway", "--columns"}; // of the common options

// "2", also "0.5", which is refused later; an address is none.
bool isNumber(const std::string &word) {
    return !word.empty() && word.find_first_not_of("0123456789.") == std::string::npos &&
           std::count(word.begin(), word.end(), '.') <= 1;
}

// "--watch 5" and "--watch": a word follows only where it can be the value.
void addLeftOutValues(Words &words) {
    for (size_t i = 0; i < words.size(); ++i) {
        const bool last = i + 1 == words.size();
        const auto put = [&](const char *value) { words.insert(words.begin() + static_cast<long>(i) + 1, value); };
        if (words[i] == "--watch" && (last || !isNumber(words[i + 1]))) {
            put(kDefaultWatch);
        } else if (words[i] == "--mode-section" && (last || words[i + 1].starts_with('-'))) {
            put(kAllModes);
        }
    }
}

std::vector<const Command *> nouns() {
    std::vector<const Command *> all;
    for (const std::span<const Command> group : commands()) {
        for (const Command &command : group) {
            all.push_back(&command);
        }
    }
    return all;
}

std::vector<const Command *> verbsOf(const Command &noun) {
    std::vector<const Command *> all;
    for (const Command &verb : noun.verbs) {
        all.push_back(&verb);
    }
    return all;
}

// The one of that name, or the only one that begins so; null where there is none.
const Command *meant(const std::vector<const Command *> &commands, const std::string &word) {
    const auto exact =
        std::find_if(commands.begin(), commands.end(), [&](const Command *one) { return word == one->name; });
    if (exact != commands.end()) {
        return *exact;
    }
    const auto begins = [&](const Command *one) {
        return !word.empty() && std::string_view(one->name).starts_with(word);
    };
    const auto first = std::find_if(commands.begin(), commands.end(), begins);
    const bool only =
        first != commands.end() && std::find_if(std::next(first), commands.end(), begins) == commands.end();
    return only ? *first : nullptr;
}

// Nouns and verbs written out; whether "help" stood among them, which is taken out where it is followed by what can be
// explained: a word that is not understood is left for the parser to refuse.
bool writeOut(Words &words) {
    bool help = false;
    std::vector<const Command *> choice = nouns();
    for (size_t i = 0; i < words.size() && !choice.empty(); ++i) {
        if (words[i].starts_with('-')) {
            const bool takesNext =
                std::find(std::begin(kWithValue), std::end(kWithValue), words[i]) != std::end(kWithValue);
            i += takesNext || words[i] == "--watch" ? 1 : 0;
            continue;
        }
        if (words[i] == "help") {
            help = true;
            words.erase(words.begin() + static_cast<long>(i--));
            continue;
        }
        const Command *command = meant(choice, words[i]);
        if (!command) {
            return false;
        }
        words[i] = command->name;
        choice = verbsOf(*command);
    }
    return help;
}

} // namespace

Words parserWords(Words words) {
    addLeftOutValues(words);
    if (writeOut(words)) {
        words.emplace_back("--help");
    }
    return words;
}

} // namespace cli
