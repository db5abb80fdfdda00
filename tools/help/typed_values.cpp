// SPDX-License-Identifier: MIT
#include "help/typed_values.h"

#include <cctype>
#include <span>
#include <string_view>

namespace help {
namespace {

constexpr std::string_view kAnyValue = "...";

std::span<char *const> typedWords;

bool isOfName(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '_';
}

// "NAME" and "VALUE"; both empty where the word is not of that form.
struct Assignment {
    std::string_view name, value;
};

Assignment assignmentIn(std::string_view word) {
    if (word.starts_with("--")) {
        const size_t option = word.find('=');
        word.remove_prefix(option == std::string_view::npos ? word.size() : option + 1);
    } else if (word.starts_with('-')) { // one letter, with its value behind it
        word.remove_prefix(word.size() < 2 ? 1 : 2);
    }
    const size_t equals = word.find('=');
    if (equals == std::string_view::npos) {
        return {};
    }
    size_t start = equals;
    while (start > 0 && isOfName(word[start - 1])) {
        --start;
    }
    return {word.substr(start, equals - start), word.substr(equals + 1)};
}

// How much of the text's beginning stands for the value, or for its beginning: a message may have cut it, and may have
// put escapes for its bytes.
size_t shownLength(std::string_view text, std::string_view value) {
    size_t at = 0;
    for (size_t i = 0; i < value.size() && at < text.size(); ++i) {
        if (text[at] == value[i]) {
            ++at;
        } else if (text[at] == '\\' && at + 1 < text.size()) {
            at += text[at + 1] == 'x' ? std::string_view("\\x00").size() : std::string_view("\\n").size();
        } else {
            break;
        }
    }
    at = at < text.size() ? at : text.size();
    return at > 0 && text.substr(at).starts_with(kAnyValue) ? at + kAnyValue.size() : at;
}

void hide(const Assignment &typed, std::string &text) {
    const std::string mark = std::string(typed.name) + "=";
    for (size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at)) {
        at += mark.size();
        if (const size_t length = shownLength(std::string_view(text).substr(at), typed.value); length > 0) {
            text.replace(at, length, kAnyValue);
        }
    }
}

} // namespace

void noteTypedWords(int argc, char *const *argv) {
    typedWords = std::span(argv, static_cast<size_t>(argc)).subspan(argc > 0 ? 1 : 0);
}

std::string withoutTypedValues(std::string text) {
    for (const char *word : typedWords) {
        if (const Assignment typed = assignmentIn(word); !typed.name.empty() && !typed.value.empty()) {
            hide(typed, text);
        }
    }
    return text;
}

} // namespace help
