// SPDX-License-Identifier: MIT
#include "exchange/json_value.h"
#include "store/cal_codes.h"
#include "store/fault.h"
#include "tool/command.h"
#include "value/path.h"

#include <charconv>
#include <iostream>

namespace sandbox {
namespace {

struct Options {
    std::string object;
    std::string operation;
    std::string code;
    int lateMs = 0;
    std::optional<int64_t> nth;
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
        throw Failure(text + " is neither a negative number nor the name of a code", kUsage);
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

Json toJson(const Fault &fault) {
    Json object{{"id", fault.id}};
    object["object"] = fault.object.empty() ? Json() : Json(pathOf(fault.object));
    object["operation"] = fault.operation.empty() ? Json() : Json(fault.operation);
    object["code"] = jsonOrNull(fault.code);
    object["late_ms"] = fault.lateMs;
    object["nth"] = jsonOrNull(fault.remaining);
    return object;
}

template <typename Work>
void inTransaction(const Tool &tool, Work work) {
    const std::unique_ptr<Database> database = tool.open();
    Transaction transaction(*database, Transaction::Kind::Write);
    work(*database);
    transaction.commit();
}

void addFaultAdd(CLI::App &group, Tool &tool) {
    auto options = makeOptions<Options>();
    CLI::App *command = group.add_subcommand("add", "Make requests fail, or answer them late");
    command->add_option("OBJECT", options->object, "The object that is hit, with all below it; \"any\" for every one")
        ->required();
    command->add_option("--code", options->code, "The code that the request fails with, a number or a name below");
    command->add_option("--late", options->lateMs, "Wait before the answer")
        ->type_name("MS")
        ->check(CLI::Range(0, 3'600'000));
    command->add_option("--nth", options->nth, "Hit the N-th request from now alone; without it, every one")
        ->type_name("N")
        ->check(CLI::Range(int64_t{1}, int64_t{1'000'000'000}));
    command->add_option("--on", options->operation, "Hit one kind of request only")
        ->check(CLI::IsMember({"get", "set"}));
    command->footer("With neither --code nor --late a request fails with store-failed. The codes:" + codeNames() +
                    "\n\nExamples:\n  caltofal-sandbox fault add any --nth 3\n"
                    "  caltofal-sandbox fault add Device.Hosts. --late 1500 --on get");
    command->callback([&tool, options] {
        Fault fault;
        fault.object = options->object == "any" ? "" : keyOfArgument(options->object);
        fault.operation = options->operation;
        fault.lateMs = options->lateMs;
        fault.remaining = options->nth;
        if (!options->code.empty() || options->lateMs == 0) {
            fault.code = codeOf(options->code.empty() ? "store-failed" : options->code);
        }
        inTransaction(tool, [&](Database &database) { fault.id = addFault(database, fault); });
        printFault(fault);
    });
}

void addFaultList(CLI::App &group, Tool &tool) {
    auto options = makeOptions<Options>();
    CLI::App *command = group.add_subcommand("list", "Show the faults that are ordered");
    command->add_flag("--json", options->json, "As JSON");
    command->callback([&tool, options] {
        const std::unique_ptr<Database> database = tool.open();
        Json array = Json::array();
        for (const Fault &fault : listFaults(*database)) {
            if (options->json) {
                array.push_back(toJson(fault));
            } else {
                printFault(fault);
            }
        }
        if (options->json) {
            std::cout << array.dump(2) << '\n';
        }
    });
}

void addFaultClear(CLI::App &group, Tool &tool) {
    auto options = makeOptions<Options>();
    CLI::App *command = group.add_subcommand("clear", "Take a fault back, or all");
    command->add_option("ID", options->id, "The fault's number in the list");
    command->callback([&tool, options] {
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

void addFault(CLI::App &app, Tool &tool) {
    CLI::App *group = app.add_subcommand("fault", "Order failing and late requests");
    group->require_subcommand(1);
    addFaultAdd(*group, tool);
    addFaultList(*group, tool);
    addFaultClear(*group, tool);
}

} // namespace sandbox
