// SPDX-License-Identifier: MIT
#include "exchange/gateway_file.h"

#include "store/schema.h"
#include "value/escape.h"
#include "value/path.h"
#include "value/secret.h"

#include <algorithm>
#include <charconv>

namespace sandbox {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kFileMark = "@file ";
constexpr std::string_view kAnswerMark = "@answer ";
constexpr std::string_view kCaptureMark = "@capture";

[[noreturn]] void refuse(const std::string &message) {
    throw std::invalid_argument(message);
}

bool isBlank(char c) {
    return kBlanks.find(c) != std::string_view::npos;
}

bool skipBlanks(std::string_view &text) {
    const size_t count = std::min(text.find_first_not_of(kBlanks), text.size());
    text.remove_prefix(count);
    return count != 0;
}

// The annotation at the front of the text, which is taken off it: up to a blank or "]" that is not in quotes or
// parentheses.
std::string_view takeAnnotation(std::string_view &text) {
    bool insideQuotes = false;
    int depth = 0;
    size_t i = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (insideQuotes) {
            i += c == '\\' ? 1 : 0;
            insideQuotes = c != '"';
        } else if (c == '"') {
            insideQuotes = true;
        } else if (depth == 0 && (isBlank(c) || c == ']')) {
            break;
        } else {
            depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        }
    }
    const std::string_view annotation = text.substr(0, i);
    text.remove_prefix(annotation.size());
    return annotation;
}

std::string unquote(std::string_view text) {
    const bool quotes = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    std::optional<std::string> result = quotes ? unescape(text.substr(1, text.size() - 2)) : std::nullopt;
    if (!result) {
        refuse("expected a text in double quotes, without unknown escapes");
    }
    return std::move(*result);
}

uint32_t numberOf(std::string_view text) {
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        refuse("expected a number");
    }
    return value;
}

// Takes `prefix` off the text where it stands there.
bool takePrefix(std::string_view &text, std::string_view prefix) {
    const bool found = text.starts_with(prefix);
    text.remove_prefix(found ? prefix.size() : 0);
    return found;
}

// Annotations that are one word.
struct Word {
    std::string_view text;
    void (*apply)(Entry &entry);
};
constexpr Word kWords[] = {
    {"ro", [](Entry &entry) { entry.writable = false; }},
    {"rw", [](Entry &entry) { entry.writable = true; }},
    {"stored-only", [](Entry &entry) { entry.presence = kStored; }},
    {"running-only", [](Entry &entry) { entry.presence = kRunning; }},
};

class LineReader {
  public:
    explicit LineReader(std::string_view line) : rest_(line) {}

    Entry read() {
        if (rest_.starts_with(kFileMark) || rest_.starts_with(kAnswerMark)) {
            return readRecording();
        }
        const std::string_view path = rest_.substr(0, rest_.find_first_of(kBlanks));
        if (const std::string_view front = pathAtFront(path); !front.empty() && front != path) {
            refuseBehind(front);
        }
        entry_ = entryOf(path);
        rest_.remove_prefix(path.size());
        bool separated = skipBlanks(rest_);
        if (takePrefix(rest_, "[")) {
            readAnnotations();
            separated = skipBlanks(rest_);
        }
        if (separated && takePrefix(rest_, "=")) {
            readValue();
        } else if (!rest_.empty()) {
            refuseBehind(entry_.fullPath());
        }
        if (entry_.kind == Entry::Kind::Object && table_) {
            entry_.writable = entry_.writable.value_or(false);
        }
        judge();
        return std::move(entry_);
    }

  private:
    // Messages show no more of a line than its path: the rest may be a secret.
    [[noreturn]] static void refuseBehind(std::string_view path) {
        refuse("expected \" = \" behind " + std::string(path));
    }

    // @file "PATH" = CONTENT, or @answer "COMMAND" EXITCODE = OUTPUT
    Entry readRecording() {
        entry_.kind = Entry::Kind::Recording;
        const bool file = takePrefix(rest_, kFileMark);
        takePrefix(rest_, kAnswerMark);
        entry_.path = unquote(takeAnnotation(rest_));
        skipBlanks(rest_);
        if (!file) {
            entry_.exitCode = static_cast<int>(numberOf(takeAnnotation(rest_)));
            skipBlanks(rest_);
        }
        if (entry_.path.empty() || !takePrefix(rest_, "=")) {
            refuse("expected a name in double quotes and \" = \"");
        }
        readValue();
        return std::move(entry_);
    }

    void readAnnotations() {
        for (skipBlanks(rest_); !takePrefix(rest_, "]"); skipBlanks(rest_)) {
            if (rest_.empty()) {
                refuse("the annotations lack their closing \"]\"");
            }
            readAnnotation(takeAnnotation(rest_));
        }
        if (list_) {
            refuse("\"list\" lacks the type of its items");
        }
    }

    void readAnnotation(std::string_view text) {
        for (const Word &word : kWords) {
            if (word.text == text) {
                word.apply(entry_);
                return;
            }
        }
        if (text == "table") {
            table_ = true;
        } else if (text == "list") {
            list_ = true;
        } else if (takePrefix(text, "default=")) {
            entry_.fallback = unquote(text);
        } else if (takePrefix(text, "running=")) {
            entry_.running = unquote(text);
        } else if (takePrefix(text, "last=")) {
            entry_.last = numberOf(text);
        } else if (entry_.type) {
            refuse(quotedValue(entry_.name, text) + " is a second type, or an unknown annotation");
        } else {
            readType(list_ ? "list " + std::string(text) : std::string(text));
        }
    }

    void readType(const std::string &text) {
        try {
            entry_.type = ValueType::parse(text);
            list_ = false;
        } catch (const std::invalid_argument &) {
            if (isSecretName(entry_.name)) {
                refuse("an unknown type or annotation");
            }
            throw;
        }
    }

    void readValue() {
        if (!rest_.empty() && !takePrefix(rest_, " ")) {
            refuse("expected a blank behind \"=\"");
        }
        entry_.value = unescape(rest_);
        if (!entry_.value) {
            refuse("the value has an unknown escape");
        }
    }

    // Whether the entry has what its kind needs, and nothing else.
    void judge() const {
        const bool parameter = !entry_.name.empty();
        const bool pattern =
            entry_.kind == Entry::Kind::TemplateObject || entry_.kind == Entry::Kind::TemplateParameter;
        if (entry_.kind == Entry::Kind::Parameter && !entry_.value) {
            refuse(quotedShort(entry_.fullPath()) + " has no value: \" = \" is missing");
        }
        if (entry_.value && entry_.kind != Entry::Kind::Parameter) {
            refuse("only a parameter of an existing object has a value");
        }
        const bool tablePattern = entry_.path.ends_with("{i}.") && !parameter;
        if (table_ && !tablePattern && entry_.kind != Entry::Kind::Object) {
            refuse(R"("table" belongs to a table's path, or to one that ends in "{i}.")");
        }
        const bool forParameters = entry_.type || entry_.fallback || (entry_.writable && !tablePattern && !table_);
        const bool forObjects = entry_.presence || entry_.last;
        if ((forParameters && !parameter) || (forObjects && (parameter || pattern)) ||
            (entry_.running && !entry_.value)) {
            refuse("an annotation does not belong to an entry of this kind");
        }
    }

    std::string_view rest_;
    Entry entry_{};
    bool table_ = false;
    bool list_ = false;
};

void append(std::string &annotations, const std::string &annotation) {
    annotations += annotations.empty() ? "" : " ";
    annotations += annotation;
}

} // namespace

std::string gatewayAnnotations(const Entry &entry) {
    std::string text;
    if (entry.name.empty() && entry.writable) {
        append(text, "table");
    }
    if (entry.type) {
        append(text, entry.type->text());
    }
    if (entry.writable) {
        append(text, *entry.writable ? "rw" : "ro");
    }
    if (entry.fallback) {
        append(text, "default=" + inQuotes(*entry.fallback));
    }
    if (entry.running) {
        append(text, "running=" + inQuotes(*entry.running));
    }
    if (entry.presence) {
        append(text, *entry.presence == kStored ? "stored-only" : "running-only");
    }
    if (entry.last) {
        append(text, "last=" + std::to_string(*entry.last));
    }
    return text;
}

Entry gatewayEntry(std::string_view line) {
    return LineReader(line).read();
}

Entries readGatewayFile(std::string_view text, const std::string &file) {
    Entries entries;
    for (size_t number = 1; !text.empty(); ++number) {
        const size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        skipBlanks(line);
        if (line.empty() || line.front() == '#' || line == kCaptureMark) {
            continue;
        }
        try {
            entries.push_back(gatewayEntry(line));
            entries.back().line = number;
        } catch (const std::invalid_argument &error) {
            throw FileError(file, number, error.what());
        }
    }
    return entries;
}

bool isCapture(std::string_view text) {
    while (text.starts_with('#')) {
        text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    }
    return text.starts_with(kCaptureMark);
}

std::string gatewayLine(const Entry &entry) {
    if (entry.kind == Entry::Kind::Recording) {
        const std::string code = entry.exitCode ? std::to_string(*entry.exitCode) + " " : "";
        return std::string(entry.exitCode ? kAnswerMark : kFileMark) + inQuotes(entry.path) + " " + code + "= " +
               escapeValue(*entry.value);
    }
    std::string line = entry.fullPath();
    if (const std::string annotations = gatewayAnnotations(entry); !annotations.empty()) {
        line += " [" + annotations + "]";
    }
    if (entry.value) {
        line += entry.value->empty() ? " =" : " = " + escapeValue(*entry.value);
    }
    return line;
}

} // namespace sandbox
