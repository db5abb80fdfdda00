// SPDX-License-Identifier: MIT
#include "exchange/json_file.h"

#include "value/escape.h"
#include "value/value_syntax.h"

#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>
#include <ostream>

namespace sandbox {
namespace {

using nlohmann::json;

constexpr const char *kHexKey = "hex";

// Walks the text and counts the lines behind it, so that the handler knows where it is.
class LineCounter {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    LineCounter(const char *at, size_t *line) : at_(at), line_(line) {}
    reference operator*() const { return *at_; }
    LineCounter &operator++() {
        *line_ += *at_ == '\n' ? 1 : 0;
        ++at_;
        return *this;
    }
    bool operator==(const LineCounter &other) const { return at_ == other.at_; }
    bool operator!=(const LineCounter &other) const { return at_ != other.at_; }

  private:
    const char *at_;
    size_t *line_;
};

std::string bytesOf(const std::string &hex) {
    if (!isHexBinary(hex)) {
        throw std::invalid_argument(quotedShort(hex) + " is no row of pairs of hexadecimal digits");
    }
    std::string bytes;
    for (size_t i = 0; i < hex.size(); i += 2) {
        unsigned byte = 0;
        std::from_chars(hex.data() + i, hex.data() + i + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string hexOf(const std::string &bytes) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
    }
    return hex;
}

// Collects the members of the one object.
class Handler : public nlohmann::json_sax<json> {
  public:
    Handler(const std::string &file, const size_t &line) : file_(file), line_(line) {}

    bool null() override { refuse("null is no value"); }
    bool boolean(bool value) override { return take(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override { return take(std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) override { return take(std::to_string(value)); }
    bool number_float(number_float_t /*value*/, const string_t &text) override { return take(text); }
    bool string(string_t &value) override { return take(value); }
    bool binary(binary_t & /*value*/) override { refuse("binary is no value"); }

    bool start_object(std::size_t /*elements*/) override {
        if (depth_ == 2 || (depth_ == 1 && path_.empty())) {
            refuse("a value is text, a number, a flag or {\"hex\": ...}");
        }
        ++depth_;
        return true;
    }
    bool key(string_t &name) override {
        if (depth_ == 2 && name != kHexKey) {
            refuse("a value is text, a number, a flag or {\"hex\": ...}");
        }
        if (depth_ == 1) {
            path_ = name;
            pathLine_ = line_;
        }
        return true;
    }
    bool end_object() override {
        --depth_;
        return true;
    }
    bool start_array(std::size_t /*elements*/) override { refuse("an array is no value"); }
    bool end_array() override { return true; }
    bool parse_error(std::size_t /*position*/, const std::string & /*token*/, const json::exception &error) override {
        refuse(error.what());
    }

    Entries entries;

  private:
    [[noreturn]] void refuse(const std::string &message) const { throw FileError(file_, line_, message); }

    bool take(const std::string &value) {
        if (depth_ == 0) {
            refuse("expected an object, {\"path\": value}");
        }
        try {
            Entry entry = entryOf(path_);
            if (entry.kind != Entry::Kind::Parameter) {
                refuse(quotedShort(path_) + " is no parameter");
            }
            entry.value = depth_ == 2 ? bytesOf(value) : value;
            entry.line = pathLine_;
            entries.push_back(std::move(entry));
        } catch (const std::invalid_argument &error) {
            refuse(error.what());
        }
        return true;
    }

    const std::string &file_;
    const size_t &line_;
    size_t pathLine_ = 0;
    int depth_ = 0;
    std::string path_;
};

json valueOf(const Entry &entry) {
    const std::string &text = *entry.value;
    if (!isCleanText(text)) {
        return {{kHexKey, hexOf(text)}};
    }
    const bool flag = entry.type && entry.type->isFlag() && (text == "true" || text == "false");
    if (flag || (entry.type && entry.type->isNumber() && isDecimal(text))) {
        json parsed = json::parse(text, nullptr, false);
        if (parsed.dump() == text) {
            return parsed;
        }
    }
    return text;
}

} // namespace

Entries readJson(std::string_view text, const std::string &file) {
    size_t line = 1;
    Handler handler(file, line);
    json::sax_parse(LineCounter(text.data(), &line), LineCounter(text.data() + text.size(), &line), &handler);
    return std::move(handler.entries);
}

void writeJson(const Entries &entries, std::ostream &out) {
    const char *separator = "{";
    for (const Entry &entry : entries) {
        if (entry.kind == Entry::Kind::Parameter) {
            out << separator << "\n  " << json(entry.fullPath()).dump() << ": " << valueOf(entry).dump();
            separator = ",";
        }
    }
    out << (*separator == '{' ? "{}\n" : "\n}\n");
}

} // namespace sandbox
