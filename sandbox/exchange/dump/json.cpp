// SPDX-License-Identifier: MIT
#include "exchange/dump/json.h"

#include "exchange/dump/json_leaf.h"
#include "exchange/dump/known.h"
#include "exchange/dump/words.h"
#include "value/escape.h"
#include "value/value_syntax.h"

#include <algorithm>
#include <unordered_set>

namespace sandbox {
namespace {

constexpr std::string_view kRoots[] = {"Device", "InternetGatewayDevice"};
constexpr size_t kFewRows = 5;
constexpr std::string_view kBytesSuffix = "_hex";

bool isRoot(std::string_view text) {
    return std::find(std::begin(kRoots), std::end(kRoots), text) != std::end(kRoots);
}

// "Device.X", also "Device." alone.
bool beginsWithRoot(std::string_view text) {
    return text.find('.') != std::string_view::npos && isRoot(text.substr(0, text.find('.')));
}

bool isPathLike(std::string_view text) {
    return text.find('.') != std::string_view::npos && text.find_first_of(" /") == std::string_view::npos;
}

bool areScalars(const JsonNode &array) {
    return std::all_of(array.children.begin(), array.children.end(),
                       [](const auto &child) { return child.node.isScalar(); });
}

std::string withDot(std::string path) {
    path += path.empty() || path.ends_with('.') ? "" : ".";
    return path;
}

std::string textOf(const JsonNode *node) {
    return node && node->isScalar() ? node->text : "";
}

// The name that an ACS gives a device; "" for none.
std::string deviceName(const JsonNode &node) {
    const JsonNode *id = node.member("_deviceId");
    const std::string name = textOf(node.member("_id"));
    return name.empty() && id ? textOf(id->member("_SerialNumber")) : name;
}

class JsonDump {
  public:
    JsonDump(const std::string &file, const std::string &device) : file_(file), device_(device) {}

    Dump run(const std::vector<JsonNode> &values) {
        std::vector<const JsonNode *> nodes(values.size());
        std::transform(values.begin(), values.end(), nodes.begin(), [](const JsonNode &value) { return &value; });
        pieces(nodes);
        if (dump_.rows.empty()) {
            for (const JsonNode *node : nodes) {
                withoutRoot(*node);
            }
        }
        judgeDevices();
        return std::move(dump_);
    }

  private:
    void judgeDevices() const {
        if (dump_.rows.empty() || (device_.empty() ? devices_.size() < 2 : chosen_)) {
            return;
        }
        constexpr size_t kMostNames = 20;
        std::string names;
        for (size_t i = 0; i < std::min(devices_.size(), kMostNames); ++i) {
            names += (names.empty() ? "" : ", ") + devices_[i];
        }
        names += devices_.size() > kMostNames ? " ..." : "";
        const std::string holds =
            "holds " + std::to_string(devices_.size()) + (devices_.size() == 1 ? " device: " : " devices: ") + names;
        throw FileError(file_, device_.empty() ? holds + "; --device takes one of them"
                                               : "no device " + quotedShort(device_) + " in it; it " + holds);
    }

    // What is not below a root yet: a wrapper, a root's holder, a list.
    void document(const JsonNode &node) {
        if (isTuple(node)) {
            tuple(node);
        } else if (node.kind == JsonNode::Kind::Array) {
            std::vector<const JsonNode *> nodes;
            for (const auto &[name, child] : node.children) {
                nodes.push_back(&child);
            }
            pieces(nodes);
        } else if (isNamed(node)) {
            named(node, "");
        } else if (node.kind == JsonNode::Kind::Object) {
            members(node, "");
        }
    }

    // ["Device.DeviceInfo.UpTime", 77, "xsd:unsignedInt"], or with the type before the value
    static bool isTuple(const JsonNode &node) {
        return node.kind == JsonNode::Kind::Array && node.children.size() >= 2 && areScalars(node) &&
               beginsWithRoot(node.children.front().node.text);
    }

    void tuple(const JsonNode &node) {
        const auto text = [&node](size_t i) { return node.children[i].node.text; };
        const bool typed = node.children.size() > 2;
        const bool swapped = typed && areSwapped(text(1), text(2));
        DumpRow row = rowOf(text(0), node);
        readLeaf(node.children[swapped ? 2 : 1].node, row);
        row.type = typed ? text(swapped ? 1 : 2) : "";
        dump_.rows.push_back(std::move(row));
    }

    // A list's items belong together, unless they are devices, of which one is taken.
    void pieces(const std::vector<const JsonNode *> &nodes) {
        const bool entries =
            std::any_of(nodes.begin(), nodes.end(), [](const JsonNode *node) { return isEntry(*node); });
        for (size_t i = 0; i < nodes.size(); ++i) {
            const JsonNode *node = nodes[i];
            const size_t before = dump_.rows.size();
            document(*node);
            if (dump_.rows.size() == before) {
                if (entries && !isEntry(*node)) {
                    countNameless(*node, i);
                }
                continue;
            }
            if (before == 0) {
                firstDevice(*node);
            } else if (isOtherDevice(*node, before)) {
                otherDevice(*node, before);
            }
        }
    }

    // What a wrapper holds names it before the wrapper does.
    void firstDevice(const JsonNode &node) {
        const std::string name = deviceName(node);
        if (devices_.empty()) {
            devices_.push_back(name.empty() ? "1" : name);
        } else if (devices_.size() == 1 && !name.empty()) {
            devices_.front() = name;
        }
        chosen_ = chosen_ || device_ == devices_.front();
    }

    void otherDevice(const JsonNode &node, size_t before) {
        const std::string name = deviceName(node);
        devices_.push_back(name.empty() ? std::to_string(devices_.size() + 1) : name);
        const bool chosen = !chosen_ && device_ == devices_.back();
        const auto begin = dump_.rows.begin();
        if (chosen) {
            dump_.rows.erase(begin, begin + static_cast<ptrdiff_t>(before));
            dump_.report.count(Reason::OtherDevice, devices_.front());
        } else {
            dump_.rows.resize(before);
            dump_.report.count(Reason::OtherDevice, devices_.back());
        }
        chosen_ = chosen_ || chosen;
    }

    // Several parameters, at least half of which were there.
    bool isOtherDevice(const JsonNode &node, size_t before) {
        const size_t rows = dump_.rows.size() - before;
        if (node.member("_id") || node.member("_deviceId")) {
            return rows != 0;
        }
        if (rows < kFewRows) {
            return false;
        }
        std::unordered_set<std::string_view> paths;
        for (size_t i = 0; i < before; ++i) {
            paths.insert(dump_.rows[i].path);
        }
        const auto known = std::count_if(dump_.rows.begin() + static_cast<ptrdiff_t>(before), dump_.rows.end(),
                                         [&](const DumpRow &row) { return paths.contains(row.path); });
        return 2 * static_cast<size_t>(known) >= rows;
    }

    // A branch that begins below Device.
    void withoutRoot(const JsonNode &node) {
        const bool branch = std::any_of(node.children.begin(), node.children.end(), [](const auto &child) {
            return isKnownTop(child.name.substr(0, child.name.find('.')));
        });
        if (branch) {
            members(node, "Device.");
        } else if (node.children.size() == 1) {
            withoutRoot(node.children[0].node);
        }
    }

    static bool isNamed(const JsonNode &node) {
        const JsonNode *name = node.kind == JsonNode::Kind::Object ? memberOf(node, Role::Name) : nullptr;
        return name && name->kind == JsonNode::Kind::Text &&
               (beginsWithRoot(name->text) || isRoot(name->text) ||
                (isPathLike(name->text) && memberOf(node, Role::Value)));
    }

    static bool isEntry(const JsonNode &node) { return isTuple(node) || isNamed(node); }

    // An entry of a list that does not say what it is for.
    void countNameless(const JsonNode &node, size_t index) {
        const bool tuple = node.kind == JsonNode::Kind::Array && node.children.size() > 1;
        dump_.report.values += tuple || memberOf(node, Role::Value) ? 1 : 0;
        dump_.report.count(Reason::NoName,
                           "entry " + std::to_string(index + 1) + " in line " + std::to_string(node.line));
    }

    // An item that says which parameter or object it is. `prefix` is that of the list that holds it.
    void named(const JsonNode &node, const std::string &prefix) {
        const std::string &name = memberOf(node, Role::Name)->text;
        const std::string path = beginsWithRoot(name) || isRoot(name) ? name : prefix + name;
        const JsonNode *value = memberOf(node, Role::Value);
        const JsonNode *contents = memberOf(node, Role::Contents);
        if (value && value->kind == JsonNode::Kind::Array && !areScalars(*value)) {
            contents = value;
        }
        if (contents && !contents->isScalar()) {
            inside(*contents, withDot(path));
            return;
        }
        DumpRow row = rowOf(path, node);
        readLeaf(node, row);
        row.object = isObjectWord(row.type) || path.ends_with('.');
        dump_.rows.push_back(std::move(row));
    }

    // What an item has below it: members, or a list of items that may go on from its path.
    void inside(const JsonNode &contents, const std::string &prefix) {
        if (contents.kind == JsonNode::Kind::Object) {
            members(contents, prefix);
            return;
        }
        for (size_t i = 0; i < contents.children.size(); ++i) {
            const JsonNode &item = contents.children[i].node;
            const JsonNode *name = item.kind == JsonNode::Kind::Object ? memberOf(item, Role::Name) : nullptr;
            const bool usable = name && name->kind == JsonNode::Kind::Text && !name->text.empty();
            if (usable) {
                named(item, prefix);
            } else if (name || item.isScalar() || memberOf(item, Role::Value)) {
                countNameless(item, i);
            } else {
                members(item, prefix);
            }
        }
    }

    // Whether all that an object holds is of instances that the file does not name: "{i}". It says nothing of the
    // object either.
    static bool isPlaceholder(const JsonNode &node) {
        const auto says = [](const JsonMember &child) { return !child.name.starts_with('_'); };
        return node.kind == JsonNode::Kind::Object && std::any_of(node.children.begin(), node.children.end(), says) &&
               std::all_of(node.children.begin(), node.children.end(), [&](const JsonMember &child) {
                   return !says(child) || child.name.find('{') != std::string::npos || isPlaceholder(child.node);
               });
    }

    // The object at `prefix`, "" for a wrapper, and what it holds; a value is counted.
    void members(const JsonNode &node, const std::string &prefix) {
        if (!prefix.empty() && !isPlaceholder(node)) {
            DumpRow row = rowOf(prefix, node);
            row.object = true;
            if (node.isScalar()) {
                readLeaf(node, row);
            }
            if (const JsonNode *access = memberOf(node, Role::Access)) {
                row.writable = writableOfWord(access->text);
            }
            dump_.rows.push_back(std::move(row));
        }
        const bool described = memberOf(node, Role::Access) || memberOf(node, Role::Object);
        for (size_t i = 0; i < node.children.size(); ++i) {
            const auto &[name, child] = node.children[i];
            if (beginsWithRoot(name) || isRoot(name)) {
                member(child, name, prefix.empty());
            } else if (prefix.empty() && isPathLike(name) && isParameter(child, name)) {
                member(child, name, false); // below another root: counted
            } else if (name.empty() && (!prefix.empty() || child.isScalar())) {
                dump_.report.values += child.isScalar() ? 1 : 0;
                countNameless(child, i);
            } else if (prefix.empty()) {
                document(child);
            } else if (isBytesOf(node, name)) {
                takeBytes(prefix + name, child);
            } else if (!isAboutObject(name, described)) {
                member(child, prefix + name, false);
            }
        }
    }

    // Members that describe the object that holds them. In lower case they may be parameters' names elsewhere.
    static bool isAboutObject(std::string_view name, bool described) {
        const bool lower = name.empty() || name.front() == '_' || (name.front() >= 'a' && name.front() <= 'z');
        return name.empty() || name.front() == '_' || roleOf(name) == Role::Instance || (described && lower);
    }

    void member(const JsonNode &node, const std::string &path, bool top) {
        if (node.kind == JsonNode::Kind::Array && !areScalars(node)) {
            instances(node, path, top);
        } else if (isParameter(node, path)) {
            DumpRow row = rowOf(path, node);
            readLeaf(node, row);
            dump_.rows.push_back(std::move(row));
        } else if (holdsObjectAsValue(node)) {
            ++dump_.report.values;
            dump_.report.count(Reason::ObjectAsValue, path);
        } else if (node.kind == JsonNode::Kind::Array && !node.children.empty()) {
            DumpRow row = rowOf(path, node);
            row.value = joinedItems(node);
            dump_.rows.push_back(std::move(row));
        } else if (node.kind == JsonNode::Kind::Array) {
            DumpRow row = rowOf(withDot(path), node);
            row.type = "table";
            dump_.rows.push_back(std::move(row));
        } else {
            members(node, withDot(path));
        }
    }

    // Members that describe what holds them, and nothing else.
    static bool isBare(const JsonNode &node) {
        return node.kind == JsonNode::Kind::Object && !node.children.empty() &&
               std::all_of(node.children.begin(), node.children.end(), [](const auto &child) {
                   return child.name.starts_with('_') || roleOf(child.name) != Role::None;
               });
    }

    static bool holdsObjectAsValue(const JsonNode &node) {
        const JsonNode *value = node.member("_value");
        return value && value->kind == JsonNode::Kind::Object && isBare(node);
    }

    // A scalar, a value with its type, or what the ACS knows to be a parameter and never asked for.
    static bool isParameter(const JsonNode &node, const std::string &path) {
        if (path.ends_with('.')) {
            return false;
        }
        if (node.isScalar() || isLeaf(node)) {
            return true;
        }
        const JsonNode *type = node.member("_type");
        const JsonNode *object = memberOf(node, Role::Object);
        const bool typed = type && !isObjectWord(type->text) && !isTableWord(type->text);
        return isBare(node) && !holdsObjectAsValue(node) &&
               (object ? object->text == "false" : typed || memberOf(node, Role::Access) != nullptr);
    }

    // An array's items are the instances of a table, by the numbers they give or by their place.
    void instances(const JsonNode &array, const std::string &path, bool top) {
        if (top) {
            document(array.children.size() == 1 && !isNamed(array.children[0].node)
                         ? wrapped(path, array.children[0].node)
                         : array);
            return;
        }
        for (size_t i = 0; i < array.children.size(); ++i) {
            const JsonNode &item = array.children[i].node;
            const JsonNode *number = memberOf(item, Role::Instance);
            const bool given = number && isInteger(number->text);
            member(item, withDot(path) + (given ? number->text : std::to_string(i + 1)), false);
        }
    }

    static JsonNode wrapped(const std::string &name, const JsonNode &node) {
        JsonNode holder;
        holder.kind = JsonNode::Kind::Object;
        holder.line = node.line;
        holder.children.push_back({name, node});
        return holder;
    }

    // "NAME_hex" behind a text "NAME" that was not UTF-8 holds its bytes.
    static bool isBytesOf(const JsonNode &node, std::string_view name) {
        return name.ends_with(kBytesSuffix) && node.member(name.substr(0, name.size() - kBytesSuffix.size()));
    }

    void takeBytes(std::string_view path, const JsonNode &bytes) {
        path.remove_suffix(kBytesSuffix.size());
        const auto row = std::find_if(dump_.rows.rbegin(), dump_.rows.rend(),
                                      [path](const DumpRow &candidate) { return candidate.path == path; });
        if (row != dump_.rows.rend() && isHexBinary(bytes.text)) {
            row->value = bytesOfHex(bytes.text);
        }
    }

    static DumpRow rowOf(const std::string &path, const JsonNode &node) {
        DumpRow row;
        row.path = path;
        row.line = node.line;
        return row;
    }

    const std::string &file_;
    const std::string &device_; // the wanted one
    Dump dump_;
    std::vector<std::string> devices_; // the names of all
    bool chosen_ = false;
};

} // namespace

Dump readJsonDump(const std::vector<JsonNode> &values, const std::string &file, const std::string &device) {
    return JsonDump(file, device).run(values);
}

} // namespace sandbox
