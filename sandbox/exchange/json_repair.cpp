// SPDX-License-Identifier: MIT
#include "exchange/json_repair.h"

#include "exchange/text_encoding.h"
#include "value/escape.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>

namespace sandbox {
namespace {

// Private code points, the last of Unicode: U+10FF80 to U+10FFFF for the bytes 0x80 to 0xff.
constexpr char32_t kByteBase = 0x10ff00;
constexpr std::string_view kBytePrefix = "\xf4\x8f"; // and 0xbe or 0xbf and a fourth byte
constexpr char32_t kNumberMark = kByteBase;          // in front of a text that was written as a number
constexpr std::string_view kNumberMarkBytes = "\xf4\x8f\xbc\x80";
constexpr std::string_view kNoNumbers[] = {"NaN", "nan",  "-nan",      "Infinity", "-Infinity",
                                           "inf", "-inf", "+Infinity", "+inf"};
constexpr std::string_view kEscapes = "\"\\/bfnrtu";

class Repair {
  public:
    explicit Repair(std::string_view text) : rest_(text) {}

    std::string run() {
        while (!rest_.empty()) {
            const char c = rest_.front();
            if (c == '"') {
                inText_ = !inText_;
                copy(1);
            } else if (inText_) {
                textCharacter(c);
            } else if (const size_t word = noNumber(); word != 0) {
                out_ += '"';
                appendUtf8(out_, kNumberMark);
                copy(word);
                out_ += '"';
            } else if (c == ',' && closesNext()) {
                rest_.remove_prefix(1);
            } else {
                copy(1);
            }
        }
        return std::move(out_);
    }

  private:
    void copy(size_t count) {
        out_ += rest_.substr(0, count);
        rest_.remove_prefix(count);
    }

    // Whether only blanks stand between the comma and a closing bracket.
    bool closesNext() const {
        const size_t next = rest_.find_first_not_of(" \t\r\n", 1);
        return next != std::string_view::npos && (rest_[next] == ']' || rest_[next] == '}');
    }

    // The length of a word that stands for a number that JSON cannot hold; 0 where there is none.
    size_t noNumber() const {
        const std::string_view before = out_;
        if (!before.empty() && std::string_view(" \t\r\n,:[").find(before.back()) == std::string_view::npos) {
            return 0;
        }
        const std::string_view word = rest_.substr(0, rest_.find_first_of(" \t\r\n,]}"));
        if (isTooLarge(word)) {
            return word.size();
        }
        return std::find(std::begin(kNoNumbers), std::end(kNoNumbers), word) == std::end(kNoNumbers) ? 0 : word.size();
    }

    static bool isTooLarge(std::string_view word) {
        double number = 0;
        const char *const end = word.data() + word.size();
        const auto [parsed, error] = std::from_chars(word.data(), end, number);
        return error == std::errc::result_out_of_range && parsed == end;
    }

    void textCharacter(char c) {
        const size_t length = utf8Length(rest_);
        if (c == '\\') {
            escape();
        } else if (length == 0) {
            appendUtf8(out_, kByteBase + static_cast<uint8_t>(c));
            rest_.remove_prefix(1);
        } else if (static_cast<uint8_t>(c) < ' ') {
            char escaped[8];
            snprintf(escaped, sizeof(escaped), "\\u%04x", static_cast<unsigned>(c));
            out_ += escaped;
            rest_.remove_prefix(1);
        } else {
            copy(length);
        }
    }

    void escape() {
        if (rest_.size() < 2 || kEscapes.find(rest_[1]) == std::string_view::npos) {
            out_ += "\\\\";
            rest_.remove_prefix(1);
        } else if (rest_[1] != 'u' || !surrogate(rest_, 'd', "89abAB")) {
            copy(surrogate(rest_, 'd', "cdefCDEF") ? loneSurrogate() : 2);
        } else if (surrogate(rest_.substr(6), 'd', "cdefCDEF")) {
            copy(12);
        } else {
            copy(loneSurrogate());
        }
    }

    // Stands for half of a character; 0 further characters are copied.
    size_t loneSurrogate() {
        out_ += "\\ufffd";
        rest_.remove_prefix(6);
        return 0;
    }

    static bool surrogate(std::string_view text, char first, std::string_view seconds) {
        return text.size() >= 6 && text[0] == '\\' && text[1] == 'u' && (text[2] | 0x20) == first &&
               seconds.find(text[3]) != std::string_view::npos;
    }

    std::string_view rest_;
    std::string out_;
    bool inText_ = false;
};

} // namespace

std::string repairedJson(std::string_view text) {
    return Repair(text).run();
}

bool takeNumberMark(std::string &text) {
    const bool marked = text.starts_with(kNumberMarkBytes);
    text.erase(0, marked ? kNumberMarkBytes.size() : 0);
    return marked;
}

std::string bytesRestored(std::string text) {
    for (size_t at = text.find(kBytePrefix); at != std::string::npos; at = text.find(kBytePrefix, at + 1)) {
        const auto third = static_cast<uint8_t>(text[at + 2]);
        if (third >= 0xbe) {
            const auto low = static_cast<uint8_t>(text[at + 3]) & 0x3f;
            text.replace(at, 4, 1, static_cast<char>((third & 3) << 6 | low));
        }
    }
    return text;
}

} // namespace sandbox
