// SPDX-License-Identifier: MIT
#include "store/fault.h"

#include <algorithm>

namespace sandbox {
namespace {

bool matches(const Fault &fault, const std::string &operation, const std::vector<std::string> &keys) {
    const bool object = fault.object.empty() || std::any_of(keys.begin(), keys.end(), [&](const std::string &key) {
                            return key.starts_with(fault.object);
                        });
    return object && (fault.operation.empty() || fault.operation == operation);
}

// Whether the fault hits the message that is counted here.
bool countDown(Database &database, const Fault &fault) {
    if (!fault.remaining) {
        return true;
    }
    if (*fault.remaining > 1) {
        Statement(database, "UPDATE fault SET remaining = remaining - 1 WHERE id = ?1", fault.id).run();
        return false;
    }
    clearFault(database, fault.id);
    return true;
}

void add(FaultVerdict &verdict, const Fault &fault) {
    verdict.lateMs += fault.lateMs;
    if (fault.code && !verdict.failing) {
        verdict.failing = fault;
    }
}

} // namespace

int64_t addFault(Database &database, const Fault &fault) {
    Statement(database, "INSERT INTO fault(object, operation, code, late, remaining) VALUES(?1, ?2, ?3, ?4, ?5)",
              fault.object, fault.operation, fault.code, fault.lateMs, fault.remaining)
        .run();
    return database.lastRowId();
}

std::vector<Fault> listFaults(Database &database) {
    std::vector<Fault> faults;
    Statement rows(database, "SELECT id, object, operation, code, late, remaining FROM fault ORDER BY id");
    while (rows.step()) {
        Fault fault{rows.integer(0), std::string(rows.text(1)),         std::string(rows.text(2)),
                    std::nullopt,    static_cast<int>(rows.integer(4)), std::nullopt};
        if (!rows.isNull(3)) {
            fault.code = static_cast<int>(rows.integer(3));
        }
        if (!rows.isNull(5)) {
            fault.remaining = rows.integer(5);
        }
        faults.push_back(std::move(fault));
    }
    return faults;
}

bool clearFault(Database &database, int64_t id) {
    Statement(database, "DELETE FROM fault WHERE id = ?1", id).run();
    return database.changes() != 0;
}

void clearFaults(Database &database) {
    Statement(database, "DELETE FROM fault").run();
}

FaultVerdict consumeFaults(Database &database, const std::string &operation, const std::vector<std::string> &keys) {
    FaultVerdict verdict;
    if (!Statement(database, "SELECT 1 FROM fault").step()) {
        return verdict;
    }
    std::optional<Transaction> transaction;
    if (database.isWritable()) {
        transaction.emplace(database, Transaction::Kind::Write);
    }
    for (const Fault &fault : listFaults(database)) {
        const bool hits = matches(fault, operation, keys) &&
                          (transaction ? countDown(database, fault) : !fault.remaining.has_value());
        if (hits) {
            add(verdict, fault);
        }
    }
    if (transaction) {
        transaction->commit();
    }
    return verdict;
}

} // namespace sandbox
