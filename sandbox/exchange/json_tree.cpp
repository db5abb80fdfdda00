// SPDX-License-Identifier: MIT
#include "exchange/json_tree.h"

#include "exchange/json_repair.h"
#include "value/entry.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <nlohmann/json.hpp>

namespace sandbox {
namespace {

using nlohmann::json;

constexpr size_t kDeepest = 200;

struct Place {
    std::string_view text;
    const char *at;
    size_t line;

    bool atEnd() const { return at == text.data() + text.size(); }
};

// The character at which the parser gave up. What stands there is not for messages: it may be a secret.
struct Fault {
    size_t line = 1;
    size_t column = 1;
};

Fault faultAt(const Place &place) {
    const std::string_view before = place.text.substr(0, static_cast<size_t>(place.at - place.text.data()));
    const std::string_view shown = before.substr(0, before.find_last_not_of(" \t\r\n") + 1);
    const size_t lineStart = shown.rfind('\n') + 1;
    const auto later = std::count(before.begin() + static_cast<ptrdiff_t>(shown.size()), before.end(), '\n');
    return {place.line - static_cast<size_t>(later), std::max<size_t>(shown.size() - lineStart, 1)};
}

// Walks the text and tells where the parser is.
class Walker {
  public:
    // NOLINTBEGIN(readability-identifier-naming): the names that iterators have
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;
    // NOLINTEND(readability-identifier-naming)

    Walker(const char *at, Place *place) : at_(at), place_(place) {}
    reference operator*() const { return *at_; }
    Walker &operator++() {
        place_->line += *at_ == '\n' ? 1 : 0;
        place_->at = ++at_;
        return *this;
    }
    bool operator==(const Walker &other) const { return at_ == other.at_; }
    bool operator!=(const Walker &other) const { return at_ != other.at_; }

  private:
    const char *at_;
    Place *place_;
};

class Builder : public nlohmann::json_sax<json> {
  public:
    Builder(const std::string &file, const Place &place, bool repaired)
        : file_(file), place_(place), repaired_(repaired) {}

    bool null() override { return add(JsonNode::Kind::Null, "null"); }
    bool boolean(bool value) override { return add(JsonNode::Kind::Flag, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override { return add(JsonNode::Kind::Number, std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) override {
        return add(JsonNode::Kind::Number, std::to_string(value));
    }
    bool number_float(number_float_t /*value*/, const string_t &text) override {
        return add(JsonNode::Kind::Number, text);
    }
    bool string(string_t &value) override {
        if (repaired_ && takeNumberMark(value)) {
            return add(JsonNode::Kind::Number, std::move(value));
        }
        return add(JsonNode::Kind::Text, repaired_ ? bytesRestored(std::move(value)) : std::move(value));
    }
    bool binary(binary_t & /*value*/) override { return false; }
    bool start_object(size_t /*elements*/) override { return open(JsonNode::Kind::Object); }
    bool start_array(size_t /*elements*/) override { return open(JsonNode::Kind::Array); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t &name) override {
        if (repaired_) {
            name_ = bytesRestored(std::move(name));
        } else {
            name_ = std::move(name);
        }
        return true;
    }
    bool parse_error(size_t /*position*/, const std::string & /*token*/, const json::exception & /*error*/) override {
        const Fault fault = faultAt(place_);
        throw FileError(file_, fault.line,
                        !place_.atEnd() ? "not JSON at character " + std::to_string(fault.column)
                        : isBlank()     ? "the file is empty"
                                        : "the JSON ends in the middle");
    }

    JsonNode root;

  private:
    bool isBlank() const { return place_.text.find_first_not_of(" \t\r\n") == std::string_view::npos; }
    bool add(JsonNode::Kind kind, std::string text) {
        JsonNode &node = open_.empty() ? root : newChild();
        name_.clear();
        node.kind = kind;
        node.line = place_.line;
        node.text = std::move(text);
        last_ = &node;
        return true;
    }

    JsonNode &newChild() {
        std::vector<JsonMember> &siblings = open_.back()->children;
        siblings.push_back({std::move(name_), {}});
        return siblings.back().node;
    }

    bool open(JsonNode::Kind kind) {
        add(kind, {});
        open_.push_back(last_);
        if (open_.size() > kDeepest) {
            throw FileError(file_, place_.line, "the JSON is nested too deeply");
        }
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    const std::string &file_;
    const Place &place_;
    bool repaired_;
    std::string name_;
    JsonNode *last_ = nullptr;
    std::vector<JsonNode *> open_; // a node moves only while a sibling is added, when it is not open
};

std::vector<JsonNode> parse(std::string_view text, const std::string &file, bool repaired) {
    std::vector<JsonNode> values;
    const char *const end = text.data() + text.size();
    Place place{text, text.data(), 1};
    for (;;) {
        for (; !place.atEnd() && (std::isspace(static_cast<unsigned char>(*place.at)) != 0 || *place.at == ',');
             ++place.at) {
            place.line += *place.at == '\n' ? 1 : 0;
        }
        if (place.atEnd() && !values.empty()) {
            return values;
        }
        Builder builder(file, place, repaired);
        json::sax_parse(Walker(place.at, &place), Walker(end, &place), &builder, json::input_format_t::json, false);
        values.push_back(std::move(builder.root));
    }
}

} // namespace

const JsonNode *JsonNode::member(std::string_view name) const {
    const auto found = std::find_if(children.rbegin(), children.rend(),
                                    [name](const JsonMember &child) { return child.name == name; });
    return found == children.rend() ? nullptr : &found->node;
}

std::vector<JsonNode> parseJson(std::string_view text, const std::string &file) {
    try {
        return parse(text, file, false);
    } catch (const FileError &) {
        return parse(repairedJson(text), file, true);
    }
}

std::vector<JsonNode> parseStrictJson(std::string_view text, const std::string &file) {
    return parse(text, file, false);
}

std::string quotedJson(const std::string &text) {
    return json(text).dump();
}

bool isJsonNumber(const std::string &text) {
    const json number = json::parse(text, nullptr, false);
    return number.is_number() && number.dump() == text;
}

} // namespace sandbox
