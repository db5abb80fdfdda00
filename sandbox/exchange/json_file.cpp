// SPDX-License-Identifier: MIT
#include "exchange/json_file.h"

#include "exchange/gateway_file.h"
#include "value/escape.h"
#include "value/path.h"
#include "value/value_syntax.h"

#include <map>
#include <ostream>
#include <unordered_map>

namespace sandbox {
namespace {

constexpr const char *kHexKey = "hex";
constexpr const char *kDefinitions = "definitions";

std::string valueOf(const JsonNode &node) {
    const JsonNode *hex = node.children.size() == 1 ? node.member(kHexKey) : nullptr;
    if (hex && isHexBinary(hex->text)) {
        return bytesOfHex(hex->text);
    }
    if (!node.isScalar() || node.kind == JsonNode::Kind::Null) {
        throw std::invalid_argument(R"(a value is text, a number, a flag or {"hex": "digits"})");
    }
    return node.text;
}

class Reader {
  public:
    Reader(const JsonNode &root, const std::string &file) : root_(root), file_(file) {}

    Entries run() {
        const JsonNode &definitions = *root_.member(kDefinitions);
        for (const auto &[path, annotations] : definitions.children) {
            guarded(annotations.line, [&, &path = path, &annotations = annotations] { define(path, annotations); });
        }
        for (const auto &[path, node] : root_.children) {
            if (path != kDefinitions) {
                guarded(node.line, [&, &path = path, &node = node] { take(path, node); });
            }
        }
        return std::move(entries_);
    }

  private:
    template <class Work>
    void guarded(size_t line, Work work) {
        try {
            work();
        } catch (const std::invalid_argument &error) {
            throw FileError(file_, line, error.what());
        }
    }

    // Those of parameters are read with their values.
    void define(const std::string &path, const JsonNode &annotations) {
        const Entry entry = entryOf(path);
        if (entry.kind == Entry::Kind::Parameter) {
            annotations_.emplace(path, annotations.text);
        } else {
            add(gatewayEntry(path + " [" + annotations.text + "]"), annotations.line);
        }
    }

    void take(const std::string &path, const JsonNode &node) {
        Entry entry = entryOf(path);
        if (entry.kind == Entry::Kind::Parameter) {
            const auto found = annotations_.find(path);
            const std::string annotations = found == annotations_.end() ? "" : " [" + found->second + "]";
            add(gatewayEntry(path + annotations + " = " + escapeValue(valueOf(node))), node.line);
        } else if (entry.kind == Entry::Kind::Object && !node.isScalar() && node.children.empty()) {
            add(std::move(entry), node.line);
        } else {
            throw std::invalid_argument(quotedShort(path) + " is no parameter: only {} can stand for an object");
        }
    }

    void add(Entry entry, size_t line) {
        entry.line = line;
        entries_.push_back(std::move(entry));
    }

    const JsonNode &root_;
    const std::string &file_;
    std::unordered_map<std::string, std::string> annotations_; // of parameters
    Entries entries_;
};

class Writer {
  public:
    explicit Writer(std::ostream &out) : out_(out) {}

    void run(const Entries &entries) {
        for (const Entry &entry : entries) {
            add(entry);
        }
        out_ << (any_ ? ",\n" : "{\n") << "  " << quotedJson(kDefinitions) << ": {";
        const char *separator = "\n    ";
        for (const auto &[path, annotations] : definitions_) {
            out_ << separator << quotedJson(path) << ": " << quotedJson(annotations);
            separator = ",\n    ";
        }
        out_ << (definitions_.empty() ? "}\n}\n" : "\n  }\n}\n");
    }

  private:
    void add(const Entry &entry) {
        const std::string path = entry.fullPath();
        if (entry.kind == Entry::Kind::TemplateParameter && entry.type) {
            types_.insert_or_assign(patternOf(entry.path) + entry.name, *entry.type);
        }
        const std::string annotations = gatewayAnnotations(entry);
        const bool pattern = entry.kind == Entry::Kind::TemplateParameter || entry.kind == Entry::Kind::TemplateObject;
        if (pattern || !annotations.empty()) {
            definitions_.emplace_back(path, annotations);
        }
        if (entry.kind == Entry::Kind::Parameter) {
            member(path, valueText(entry));
        } else if (entry.kind == Entry::Kind::Object && annotations.empty()) {
            member(path, "{}");
        }
    }

    void member(const std::string &path, const std::string &value) {
        out_ << (any_ ? ",\n" : "{\n") << "  " << quotedJson(path) << ": " << value;
        any_ = true;
    }

    std::string valueText(const Entry &entry) const {
        const std::string &text = *entry.value;
        if (!isCleanText(text)) {
            return R"({"hex":")" + hexOf(text) + R"("})";
        }
        const auto found = types_.find(patternOf(entry.path) + entry.name);
        const ValueType type = entry.type ? *entry.type : found != types_.end() ? found->second : ValueType();
        const bool flag = type.isFlag() && (text == "true" || text == "false");
        return flag || (type.isNumber() && isJsonNumber(text)) ? text : quotedJson(text);
    }

    std::ostream &out_;
    bool any_ = false;
    std::unordered_map<std::string, ValueType> types_; // of what the templates declare
    std::vector<std::pair<std::string, std::string>> definitions_;
};

} // namespace

bool isOwnJson(const std::vector<JsonNode> &values) {
    const JsonNode *definitions = values.size() == 1 ? values.front().member(kDefinitions) : nullptr;
    return definitions && definitions->kind == JsonNode::Kind::Object;
}

Entries readJson(const std::vector<JsonNode> &values, const std::string &file) {
    return Reader(values.front(), file).run();
}

void writeJson(const Entries &entries, std::ostream &out) {
    Writer(out).run(entries);
}

} // namespace sandbox
