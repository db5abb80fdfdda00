// SPDX-License-Identifier: MIT
#include "pages/capture/file.h"

#include "pages/failure.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace pages::capture {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr const char *kElsewhere = "; CSV, JSON and dumps of other programs are for caltofal-sandbox import";
constexpr size_t kPathMax = 255;

constexpr std::string_view kTypes[] = {"string",       "boolean", "int",      "unsignedInt", "long",
                                       "unsignedLong", "decimal", "dateTime", "IPAddress",   "IPv4Address",
                                       "IPv6Address",  "base64",  "enum",     "hexBinary"};

// Annotations other than types, by what they begin with, and whether parameters have them, or objects.
struct Annotation {
    std::string_view word;
    bool parameters, objects;
    bool (*fits)(std::string_view rest);
};

bool isNothing(std::string_view rest) {
    return rest.empty();
}

bool isQuoted(std::string_view rest) {
    return rest.size() >= 2 && rest.front() == '"' && rest.back() == '"' && unescaped(rest.substr(1, rest.size() - 2));
}

constexpr Annotation kAnnotations[] = {
    {"ro", true, true, isNothing},
    {"rw", true, true, isNothing},
    {"default=", true, false, isQuoted},
    {"running=", true, false, isQuoted},
    {"table", false, true, isNothing},
    {"stored-only", false, true, isNothing},
    {"running-only", false, true, isNothing},
    {"last=", false, true, isNumber},
};

[[noreturn]] void refuse(const std::string &message) {
    throw Failure(Category::Failed, message);
}

bool isPathCharacter(unsigned char c) {
    return std::isalnum(c) != 0 || c == '.' || c == '_' || c == '-' || c == '{' || c == '}';
}

// Without a final dot: names, and behind them instance numbers or "{i}".
bool isPath(std::string_view path) {
    bool named = false;
    bool whole = path.size() <= kPathMax;
    for (size_t at = 0; whole && at <= path.size();) {
        const std::string_view part = path.substr(at, path.find('.', at) - at);
        const bool number =
            isNumber(part) && part.front() != '0' && part.size() <= 10 && std::stoull(std::string(part)) <= 2147483647;
        const bool name = !part.empty() && part.front() != '-' && part.find_first_of("{}") == std::string_view::npos &&
                          !isNumber(part);
        whole = name || (named && (number || part == "{i}"));
        named = name;
        at += part.size() + 1;
    }
    return whole;
}

bool isType(std::string_view text) {
    const std::string_view name = text.substr(0, text.find('('));
    return std::find(std::begin(kTypes), std::end(kTypes), name) != std::end(kTypes) &&
           (name == text ? name != "enum" : text.ends_with(')'));
}

// One line, taken from the front.
class Reader {
  public:
    explicit Reader(std::string_view line) : rest_(line) {}

    // A parameter's line; of another entry without a parameter, and with the entry's path as its object.
    Line read() {
        if (take("@file ")) {
            return recording(false);
        }
        if (take("@answer ")) {
            return recording(true);
        }
        path();
        bool separated = skipBlanks();
        if (take("[")) {
            annotations();
            separated = skipBlanks();
        }
        if (separated && take("=")) {
            value();
        } else if (!rest_.empty() || isParameter()) {
            refuse("expected \" = \" behind " + line_.object + line_.parameter);
        }
        return std::move(line_);
    }

  private:
    bool isParameter() const { return !line_.parameter.empty() && line_.object.find('{') == std::string::npos; }

    void path() {
        const std::string_view word = rest_.substr(0, rest_.find_first_of(kBlanks));
        const bool root = word.starts_with("Device.") || word.starts_with("InternetGatewayDevice.");
        const auto *end = std::find_if_not(word.begin(), word.end(), isPathCharacter);
        const std::string shown(word.begin(), root ? end : word.begin());
        if (root && end != word.end()) {
            refuse("expected \" = \" behind " + shown + kElsewhere);
        }
        const size_t dot = word.rfind('.');
        const bool whole = end == word.end() && dot != std::string_view::npos;
        const std::string_view name = whole ? word.substr(dot + 1) : "";
        if (!whole || !isPath(word.substr(0, dot)) || (!name.empty() && (name.size() > kPathMax || !isPath(name)))) {
            refuse((root ? inQuotes(shown) + " is not a path" : "expected a path and \" = \"") + kElsewhere);
        }
        line_.object = word.substr(0, dot + 1);
        line_.parameter = name;
        rest_.remove_prefix(word.size());
    }

    Line recording(bool answer) {
        line_.object = word();
        skipBlanks();
        const bool named = isQuoted(line_.object) && line_.object != "\"\"";
        const bool coded = !answer || isNumber(word());
        skipBlanks();
        if (!named || !coded || !take("=")) {
            refuse("expected a name in double quotes and \" = \"");
        }
        text();
        return std::move(line_);
    }

    void annotations() {
        const std::string_view all = rest_;
        bool typed = false;
        for (skipBlanks(); !rest_.starts_with(']'); skipBlanks()) {
            if (rest_.empty()) {
                refuse("the annotations lack their closing \"]\"");
            }
            if (!typed && !line_.parameter.empty() && type()) {
                typed = true;
            } else if (!isAnnotation(word())) {
                refuse("an annotation is unknown, or does not belong to an entry of this kind");
            }
        }
        line_.annotations = all.substr(0, all.size() - rest_.size());
        take("]");
    }

    // Takes one off the front, "list" included, if it is there.
    bool type() {
        const std::string_view before = rest_;
        std::string_view one = word();
        if (one == "list") {
            skipBlanks();
            one = word();
        }
        const bool found = isType(one);
        rest_ = found ? rest_ : before;
        return found;
    }

    bool isAnnotation(std::string_view text) const {
        return std::any_of(std::begin(kAnnotations), std::end(kAnnotations), [&](const Annotation &row) {
            return text.starts_with(row.word) && row.fits(text.substr(row.word.size())) &&
                   (line_.parameter.empty() ? row.objects : row.parameters);
        });
    }

    void value() {
        if (!isParameter()) {
            refuse("only a parameter of an existing object has a value");
        }
        text();
    }

    void text() {
        if (!rest_.empty() && !take(" ")) {
            refuse("expected a blank behind \"=\"");
        }
        std::optional<std::string> plain = unescaped(rest_);
        if (!plain) {
            refuse("the value has an unknown escape");
        }
        line_.value = std::move(*plain);
    }

    // Up to a blank or "]" that is not in quotes or parentheses.
    std::string_view word() {
        bool quotes = false;
        int depth = 0;
        size_t i = 0;
        for (; i < rest_.size(); ++i) {
            const char c = rest_[i];
            if (!quotes && depth == 0 && (c == ' ' || c == '\t' || c == ']')) {
                break;
            }
            i += quotes && c == '\\' ? 1 : 0;
            quotes = quotes != (c == '"');
            depth += quotes ? 0 : (c == '(' ? 1 : 0) - (c == ')' ? 1 : 0);
        }
        const std::string_view result = rest_.substr(0, i);
        rest_.remove_prefix(result.size());
        return result;
    }

    bool take(std::string_view start) {
        const bool found = rest_.starts_with(start);
        rest_.remove_prefix(found ? start.size() : 0);
        return found;
    }

    bool skipBlanks() {
        const size_t count = std::min(rest_.find_first_not_of(kBlanks), rest_.size());
        rest_.remove_prefix(count);
        return count != 0;
    }

    std::string_view rest_;
    Line line_;
};

// With one kind of line ends.
std::string plainText(std::string text) {
    text.erase(0, text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    if (text.find('\n') == std::string::npos) {
        std::replace(text.begin(), text.end(), '\r', '\n');
    }
    return text;
}

std::string_view trimmed(std::string_view line) {
    line.remove_suffix(line.ends_with('\r') ? 1 : 0);
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    return line;
}

} // namespace

std::vector<Line> parametersOf(const std::string &text, const std::string &file) {
    const std::string plain = plainText(text);
    if (plain.find_first_not_of(" \t\r\n") == std::string::npos) {
        refuse(file + ": is empty");
    }
    std::vector<Line> lines;
    std::map<std::string, size_t> given;
    size_t number = 0;
    for (size_t at = 0; at < plain.size();) {
        const std::string_view whole = std::string_view(plain).substr(at, plain.find('\n', at) - at);
        at += whole.size() + 1;
        ++number;
        const std::string_view line = trimmed(whole);
        if (line.empty() || line.front() == '#' || line == "@capture") {
            continue;
        }
        try {
            Line read = Reader(line).read();
            const std::string path = read.object + read.parameter;
            if (const auto [first, added] = given.emplace(path, number); !added) {
                refuse(path + " was already given in line " + std::to_string(first->second));
            }
            if (!read.parameter.empty() && path.find('{') == std::string::npos) {
                lines.push_back(std::move(read));
            }
        } catch (const Failure &failure) {
            refuse(file + ":" + std::to_string(number) + ": " + failure.what());
        }
    }
    return lines;
}

} // namespace pages::capture
