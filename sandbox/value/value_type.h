// SPDX-License-Identifier: MIT
//
// Types of parameter values: what a gateway file writes as "unsignedInt(1:13,36:165)" or "list enum(a|b|g|n)".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

class ValueType {
  public:
    enum class Verdict { Valid, WrongType, OutOfRange };

    // A string of any length.
    ValueType();

    // Throws std::invalid_argument saying what is wrong with the text.
    static ValueType parse(std::string_view text);

    // The text that parse() reads back to the same type.
    std::string text() const;

    // Judges a value; a valid boolean is turned into "true" or "false".
    Verdict check(std::string &value) const;

    // Whether values are single integers or decimals, or single booleans.
    bool isNumber() const;
    bool isFlag() const;
    bool isList() const { return list_; }

    // Whether values, or a list's items, are addresses of IP.
    bool isAddress() const;

    // Whether the type has a range of its own, or words.
    bool isLimited() const { return !ranges_.empty() || !words_.empty(); }

    bool operator==(const ValueType &) const = default;

    // How values of a type are written and what its ranges measure; one row per type.
    struct Syntax;

  private:
    // Bounds as written, inclusive; an empty one is open.
    struct Range {
        std::string lowest, highest;
        bool operator==(const Range &) const = default;
    };

    void parseRanges(std::string_view text);
    void parseWords(std::string_view text);
    Verdict checkItem(std::string_view item) const;
    bool inRanges(std::string_view measure) const;

    const Syntax *syntax_;
    bool list_ = false;
    std::vector<Range> ranges_;      // none: any
    std::vector<std::string> words_; // of an enumeration
};

} // namespace sandbox
