// SPDX-License-Identifier: MIT
#include "help/similar.h"
#include "store/cal_codes.h"
#include "store/fault.h"
#include "store/model.h"
#include "tool/command.h"
#include "tool/json_rows.h"
#include "value/path.h"

#include <algorithm>
#include <charconv>
#include <iostream>

namespace sandbox {
namespace {

constexpr int64_t kLateMax = 3'600'000; // an hour
constexpr int64_t kNthMax = 1'000'000'000;

struct FaultOptions {
    std::string object;
    std::string operation;
    std::string code;
    std::optional<int64_t> lateMs, nth;
    std::optional<int64_t> id;
    bool json = false;
};

// A code by its number or its name.
int codeOf(const std::string &text) {
    if (const CodeName *known = findCode(std::string_view(text))) {
        return known->code;
    }
    int code = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), code);
    if (error != std::errc() || end != text.data() + text.size() || code >= 0) {
        std::vector<std::string> names;
        for (const CodeName &row : kCodeNames) {
            names.emplace_back(row.name);
        }
        throw Failure(text + " is neither a negative number nor the name of a code" + help::didYouMean(text, names),
                      kUsage);
    }
    return code;
}

std::string codeNames() {
    std::string names;
    for (const CodeName &row : kCodeNames) {
        names +=
            "\n  " + std::to_string(row.code) + "  " + std::string(row.name) + ": " + caltofal_layerCodeText(row.code);
    }
    return names;
}

std::string effectOf(const Fault &fault) {
    std::string text = fault.lateMs > 0 ? "late by " + std::to_string(fault.lateMs) + " ms" : "";
    if (fault.code) {
        const CodeName *known = findCode(*fault.code);
        text += (text.empty() ? "" : ", ") + std::to_string(*fault.code) +
                (known ? " " + std::string(known->name) : std::string());
    }
    return text;
}

void printFault(const Fault &fault) {
    std::cout << fault.id << ": " << (fault.object.empty() ? "any object" : pathOf(fault.object)) << ", "
              << (fault.operation.empty() ? "get and set" : fault.operation) << ", "
              << (fault.remaining ? "request " + std::to_string(*fault.remaining) + " from now" : "every request")
              << ": " << effectOf(fault) << '\n';
}

std::optional<std::string> unlessEmpty(const std::string &text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

JsonRow toJson(const Fault &fault) {
    return {{"id", fault.id},
            {"object", unlessEmpty(fault.object.empty() ? "" : pathOf(fault.object))},
            {"operation", unlessEmpty(fault.operation)},
            {"code", fault.code},
            {"late_ms", fault.lateMs},
            {"nth", fault.remaining}};
}

template <class Work>
void inTransaction(const Tool &tool, Work work) {
    const std::unique_ptr<Database> database = tool.open();
    Transaction transaction(*database, Transaction::Kind::Write);
    work(*database);
    transaction.commit();
}

void addFaultAdd(Command &group, Tool &tool) {
    auto options = makeOptions<FaultOptions>();
    Command command = group.add("add", "Make requests fail, or answer them late");
    command.word("OBJECT", options->object, "The object that is hit, with all below it; \"any\" for every one",
                 Need::Required);
    command.option("--code", options->code, "TEXT", "The code that the request fails with, a number or a name below");
    command.number("--late", options->lateMs, "MS", 0, kLateMax, "Wait before the answer");
    command.number("--nth", options->nth, "N", 1, kNthMax,
                   "Hit the N-th request from now alone; without it, every one");
    command.choice("--on", options->operation, {"get", "set"}, "Hit one kind of request only");
    command.footer("With neither --code nor --late a request fails with store-failed. The codes:" + codeNames() +
                   "\n\nExamples:\n  caltofal-sandbox fault add any --nth 3\n"
                   "  caltofal-sandbox fault add Device.Hosts. --late 1500 --on get");
    command.runs([&tool, options] {
        Fault fault;
        fault.object = options->object == "any" ? "" : keyOfArgument(options->object);
        fault.operation = options->operation;
        fault.lateMs = static_cast<int>(options->lateMs.value_or(0));
        fault.remaining = options->nth;
        if (!options->code.empty() || fault.lateMs == 0) {
            fault.code = codeOf(options->code.empty() ? "store-failed" : options->code);
        }
        inTransaction(tool, [&](Database &database) {
            if (!fault.object.empty() && !findObject(database, fault.object)) {
                throw Failure(options->object + ": no such object; a fault hits an object, with all below it", kAbsent);
            }
            fault.id = addFault(database, fault);
        });
        printFault(fault);
    });
}

void addFaultList(Command &group, Tool &tool) {
    auto options = makeOptions<FaultOptions>();
    Command command = group.add("list", "Show the faults that are ordered");
    command.flag("--json", options->json, "As JSON");
    command.runs([&tool, options] {
        const std::vector<Fault> faults = listFaults(*tool.open());
        if (options->json) {
            std::vector<JsonRow> rows;
            std::transform(faults.begin(), faults.end(), std::back_inserter(rows), toJson);
            printJson(rows);
        } else {
            std::for_each(faults.begin(), faults.end(), printFault);
        }
    });
}

void addFaultClear(Command &group, Tool &tool) {
    auto options = makeOptions<FaultOptions>();
    Command command = group.add("clear", "Take a fault back, or all");
    command.number("ID", options->id, "The fault's number in the list");
    command.runs([&tool, options] {
        inTransaction(tool, [&](Database &database) {
            if (!options->id) {
                clearFaults(database);
            } else if (!clearFault(database, *options->id)) {
                throw Failure("there is no fault " + std::to_string(*options->id), kAbsent);
            }
        });
    });
}

} // namespace

void addFault(Command &root, Tool &tool) {
    Command group = root.group("fault", "Order failing and late requests");
    addFaultAdd(group, tool);
    addFaultList(group, tool);
    addFaultClear(group, tool);
}

} // namespace sandbox
