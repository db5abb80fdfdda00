// SPDX-License-Identifier: MIT
#include "cal/trace.h"

#include "helper/node_words.h"
#include "store/log_line.h"
#include "value/escape.h"
#include "value/secret.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

namespace sandbox {
namespace {

constexpr const char *kStandardError = "-";
constexpr int kFirstOwn = 10; // descriptors below it are left to the program

std::string wantedFile() {
    const char *file = std::getenv("CALTOFAL_SANDBOX_TRACE");
    return file ? file : "";
}

// Standard error as the process began with it: programs such as caltofal redirect theirs while the library works.
int firstStandardError = STDERR_FILENO;
[[gnu::constructor]] void keepStandardError() {
    if (std::getenv("CALTOFAL_SANDBOX_TRACE")) {
        const int copy = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, kFirstOwn);
        firstStandardError = copy < 0 ? STDERR_FILENO : copy;
    }
}

bool writeLine(const std::string &file, const std::string &line) {
    if (file != kStandardError) {
        return appendLine(file, line);
    }
    const std::string text = line + "\n";
    return write(firstStandardError, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

void tellOnce(const std::string &file, int error) {
    static std::atomic<bool> told{false};
    if (!told.exchange(true)) {
        dprintf(firstStandardError, "CALTOFAL_SANDBOX_TRACE: %s: %s\n", file.c_str(), std::strerror(error));
    }
}

bool hasObjects(const MsgHeader *message) {
    return message && (message->listFlags & CALTOFAL_VALUE_KINDS) != 0 && message->objectList &&
           message->objectList->link.next;
}

bool isValued(const ParamNode &param) {
    return readWords<ParamWords>(param).valued != 0;
}

// Whether instances are chosen by a value: then the leaf bits say nothing.
bool hasFilter(const MsgHeader &message) {
    const ObjectNode *first = caltofal_nextObject(&message, nullptr);
    const ParamNode *param = first ? caltofal_nextParam(first, nullptr) : nullptr;
    return param && isValued(*param);
}

const char *verbOf(const ObjectNode &node) {
    switch (readWords<ObjectWords>(node).subOper) {
    case CALTOFAL_SUBOPER_ADD:
        return "add ";
    case CALTOFAL_SUBOPER_DELETE:
        return "delete ";
    default:
        return "";
    }
}

// A set without a value, which counts as an empty one.
constexpr std::string_view kNoValue = "NULL";

std::string valueText(const MsgHeader &message, const ParamNode &param) {
    if (!isValued(param)) {
        return std::string(message.mainOper == CALTOFAL_OPER_SET ? kNoValue : "");
    }
    return quotedValue(param.name, param.value);
}

std::string operationText(const char *operation, const MsgHeader *message) {
    std::string text = operation;
    if (hasObjects(message) && message->mainOper == CALTOFAL_OPER_GET) {
        const bool leaf = (message->listFlags & CALTOFAL_LIST_GET_LEAF) == CALTOFAL_LIST_GET_LEAF;
        text += leaf && !hasFilter(*message) ? "-leaf" : "";
        text += (message->listFlags & CALTOFAL_LIST_DEFAULTS) != 0 ? "-defaults" : "";
    }
    return text;
}

std::string ownerRemark(const MsgHeader *message) {
    if (!message) {
        return "";
    }
    switch (message->owner) {
    case CALTOFAL_OWNER_HOST:
    case CALTOFAL_OWNER_STORE:
    case CALTOFAL_OWNER_SINGLE:
        return "";
    default:
        return "owner " + std::to_string(message->owner) + " is none of CaltofalOwner";
    }
}

} // namespace

std::vector<Trace::Object> Trace::objectsOf(const MsgHeader *message) {
    std::vector<Object> objects;
    for (ObjectNode *node = nullptr; hasObjects(message) && (node = caltofal_nextObject(message, node)) != nullptr;) {
        Object &object = objects.emplace_back(Object{verbOf(*node), shownName(node->name), {}});
        for (ParamNode *param = nullptr; (param = caltofal_nextParam(node, param)) != nullptr;) {
            object.parameters.push_back({shownName(param->name), valueText(*message, *param)});
        }
    }
    return objects;
}

// "Device.Hosts.(HostNumberOfEntries) Device.WiFi.Radio.1.": each object with the parameters that the message names.
std::string Trace::textOf(const std::vector<Object> &objects, const Knows &isShown) {
    std::string text;
    for (const Object &object : objects) {
        std::string parameters;
        for (const auto &[name, value] : object.parameters) {
            const bool shown = value.empty() || value == kNoValue || isShown(object.path, name);
            parameters += (parameters.empty() ? "" : ",") + name + (value.empty() ? "" : "=") +
                          (shown ? value : std::string(kHidden));
        }
        text += (text.empty() ? "" : " ") + object.verb + object.path;
        text += parameters.empty() ? "" : "(" + parameters + ")";
    }
    return text.empty() ? "no object" : text;
}

Trace::Trace(const char *operation, const MsgHeader *message) noexcept {
    try {
        file_ = wantedFile();
        if (!file_.empty()) {
            operation_ = operationText(operation, message);
            request_ = objectsOf(message);
            ownerRemark_ = ownerRemark(message);
            begin_ = std::chrono::steady_clock::now();
        }
    } catch (const std::exception &) {
        file_.clear();
    }
}

void Trace::end(const std::string &gateway, int code, const char *reason, const Knows &knows) const noexcept {
    if (file_.empty()) {
        return;
    }
    try {
        const Knows all = [](const std::string &, const std::string &) { return true; };
        const auto spent = std::chrono::steady_clock::now() - begin_;
        const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(spent).count();
        const std::string process = std::string(program_invocation_short_name) + "[" + std::to_string(getpid()) + "]";
        const std::string result = code == 0 ? "0 ok" : codeText(code);
        std::string line = localTime(true) + " " + gateway + " " + process + " " + operation_ + " " + result + " " +
                           std::to_string(microseconds) + "us " + textOf(request_, code == 0 ? all : knows);
        const std::string separator = *reason == '\0' || ownerRemark_.empty() ? "" : "; ";
        const std::string remark = reason + separator + ownerRemark_;
        line += remark.empty() ? "" : " : " + remark;
        if (!writeLine(file_, line)) {
            tellOnce(file_, errno);
        }
    } catch (const std::exception &) { // NOLINT(bugprone-empty-catch): a lost line is no reason to fail
    }
}

} // namespace sandbox
