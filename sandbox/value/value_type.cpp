// SPDX-License-Identifier: MIT
#include "value/value_type.h"

#include "value/escape.h"
#include "value/value_syntax.h"

#include <algorithm>
#include <stdexcept>

namespace sandbox {
namespace {

// What a type's ranges, or its words, are held against.
enum class Measure { Nothing, Value, Characters, Base64Octets, HexOctets, Words };

constexpr std::string_view kListPrefix = "list ";

bool isAnything(std::string_view /*item*/) {
    return true;
}

[[noreturn]] void refuse(std::string_view type, const char *what) {
    throw std::invalid_argument("type " + quotedShort(type) + " " + what);
}

// The text before the separator, which is taken off `rest` with it.
std::string_view takeUntil(std::string_view &rest, char separator) {
    const size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

// The length of the quoted word at the front of the text, quotes included; 0 when it does not end.
size_t quotedLength(std::string_view text) {
    for (size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"') {
            return i + 1;
        }
        i += text[i] == '\\' ? 1 : 0;
    }
    return 0;
}

std::string wordText(const std::string &word) {
    const bool plain = !word.empty() && word.find_first_of(" |,()[]\"\\=") == std::string::npos && isCleanText(word) &&
                       word.find_first_of("\t\r\n") == std::string::npos;
    return plain ? word : inQuotes(word);
}

size_t base64Octets(std::string_view text) {
    const auto padding = static_cast<size_t>(std::count(text.begin(), text.end(), '='));
    return text.size() / 4 * 3 - padding;
}

bool isLength(Measure measure) {
    return measure == Measure::Characters || measure == Measure::Base64Octets || measure == Measure::HexOctets;
}

} // namespace

struct ValueType::Syntax {
    std::string_view name;
    Measure measure;
    bool (*valid)(std::string_view item);
    std::string_view lowest, highest; // of the type itself
};

namespace {

constexpr ValueType::Syntax kSyntaxes[] = {
    {"string", Measure::Characters, isAnything, "", ""},
    {"boolean", Measure::Nothing, isBoolean, "", ""},
    {"int", Measure::Value, isInteger, "-2147483648", "2147483647"},
    {"unsignedInt", Measure::Value, isInteger, "0", "4294967295"},
    {"long", Measure::Value, isInteger, "-9223372036854775808", "9223372036854775807"},
    {"unsignedLong", Measure::Value, isInteger, "0", "18446744073709551615"},
    {"decimal", Measure::Value, isDecimal, "", ""},
    {"dateTime", Measure::Nothing, isDateTime, "", ""},
    {"base64", Measure::Base64Octets, isBase64, "", ""},
    {"hexBinary", Measure::HexOctets, isHexBinary, "", ""},
    {"IPAddress", Measure::Nothing, isIpAddress, "", ""},
    {"IPv4Address", Measure::Nothing, isIpv4Address, "", ""},
    {"IPv6Address", Measure::Nothing, isIpv6Address, "", ""},
    {"enum", Measure::Words, isAnything, "", ""},
};

bool within(std::string_view number, std::string_view lowest, std::string_view highest) {
    return (lowest.empty() || compareDecimals(lowest, number) <= 0) &&
           (highest.empty() || compareDecimals(number, highest) <= 0);
}

} // namespace

ValueType::ValueType() : syntax_(&kSyntaxes[0]) {}

ValueType ValueType::parse(std::string_view text) {
    ValueType type;
    std::string_view rest = text;
    if (rest.starts_with(kListPrefix)) {
        type.list_ = true;
        rest = trimmed(rest.substr(kListPrefix.size()), " ");
    }
    const std::string_view name = rest.substr(0, rest.find('('));
    type.syntax_ = std::find_if(std::begin(kSyntaxes), std::end(kSyntaxes),
                                [name](const Syntax &row) { return row.name == name; });
    if (type.syntax_ == std::end(kSyntaxes)) {
        refuse(text, "is not known");
    }
    if (name == rest) {
        if (type.syntax_->measure == Measure::Words) {
            refuse(text, "needs its words");
        }
        return type;
    }
    if (!rest.ends_with(')')) {
        refuse(text, "lacks its closing parenthesis");
    }
    const std::string_view inner = rest.substr(name.size() + 1, rest.size() - name.size() - 2);
    if (type.syntax_->measure == Measure::Words) {
        type.parseWords(inner);
    } else {
        type.parseRanges(inner);
    }
    return type;
}

void ValueType::parseRanges(std::string_view text) {
    const bool length = isLength(syntax_->measure);
    if (syntax_->measure == Measure::Nothing) {
        refuse(syntax_->name, "takes no range");
    }
    do {
        const std::string_view part = trimmed(takeUntil(text, ','), " ");
        std::string_view rest = part;
        const std::string_view first = takeUntil(rest, ':');
        const bool pair = part.find(':') != std::string_view::npos;
        const std::string_view lowest = !pair && length ? "" : first; // string(64) has no lower bound
        const std::string_view highest = pair ? rest : first;
        const bool numbers = (lowest.empty() || isDecimal(lowest)) && (highest.empty() || isDecimal(highest));
        const bool empty = lowest.empty() && highest.empty();
        if (!numbers || empty || (!lowest.empty() && !within(lowest, "", highest))) {
            refuse(part, "is not a range");
        }
        ranges_.push_back({std::string(lowest), std::string(highest)});
    } while (!text.empty());
}

void ValueType::parseWords(std::string_view text) {
    do {
        std::string_view raw = text;
        if (text.starts_with('"')) {
            const size_t length = quotedLength(text);
            raw = text.substr(0, length);
            text.remove_prefix(length);
            const std::optional<std::string> word =
                unescape(raw.substr(length > 0 ? 1 : 0, length > 1 ? length - 2 : 0));
            if (length == 0 || !word || !(text.empty() || text.starts_with('|'))) {
                refuse(raw, "has a badly quoted word");
            }
            text.remove_prefix(text.empty() ? 0 : 1);
            words_.push_back(*word);
        } else {
            words_.emplace_back(takeUntil(text, '|'));
        }
    } while (!text.empty());
}

std::string ValueType::text() const {
    std::string inner;
    for (const Range &range : ranges_) {
        inner += inner.empty() ? "" : ",";
        inner +=
            range.lowest.empty() && isLength(syntax_->measure) ? range.highest : range.lowest + ":" + range.highest;
    }
    for (const std::string &word : words_) {
        inner += (&word == words_.data() ? "" : "|") + wordText(word);
    }
    const std::string name = (list_ ? std::string(kListPrefix) : std::string()) + std::string(syntax_->name);
    return inner.empty() ? name : name + "(" + inner + ")";
}

bool ValueType::isNumber() const {
    return !list_ && syntax_->measure == Measure::Value;
}

bool ValueType::isFlag() const {
    return !list_ && syntax_->valid == isBoolean;
}

bool ValueType::isAddress() const {
    return syntax_->name.ends_with("Address");
}

ValueType::Verdict ValueType::check(std::string &value) const {
    if (!list_) {
        const Verdict verdict = checkItem(value);
        if (verdict == Verdict::Valid && isFlag()) {
            value = value == "1" || value == "true" ? "true" : "false";
        }
        return verdict;
    }
    std::string_view rest = value;
    while (!rest.empty()) {
        const Verdict verdict = checkItem(trimmed(takeUntil(rest, ','), " "));
        if (verdict != Verdict::Valid) {
            return verdict;
        }
    }
    return Verdict::Valid;
}

ValueType::Verdict ValueType::checkItem(std::string_view item) const {
    if (!syntax_->valid(item)) {
        return Verdict::WrongType;
    }
    bool fits = true;
    switch (syntax_->measure) {
    case Measure::Nothing:
        break;
    case Measure::Value:
        fits = within(item, syntax_->lowest, syntax_->highest) && inRanges(item);
        break;
    case Measure::Characters:
        fits = inRanges(std::to_string(item.size()));
        break;
    case Measure::Base64Octets:
        fits = inRanges(std::to_string(base64Octets(item)));
        break;
    case Measure::HexOctets:
        fits = inRanges(std::to_string(item.size() / 2));
        break;
    case Measure::Words:
        fits = std::find(words_.begin(), words_.end(), item) != words_.end();
        break;
    }
    return fits ? Verdict::Valid : Verdict::OutOfRange;
}

bool ValueType::inRanges(std::string_view measure) const {
    return ranges_.empty() || std::any_of(ranges_.begin(), ranges_.end(), [measure](const Range &range) {
               return within(measure, range.lowest, range.highest);
           });
}

} // namespace sandbox
