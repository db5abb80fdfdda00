// SPDX-License-Identifier: MIT
//
// libcal.so: the sandbox's configuration layer. Each message is one transaction on the gateway's store.
#include "cal/cal_sandbox.h"
#include "cal/connection.h"
#include "cal/message.h"
#include "cal/trace.h"
#include "libcal.h"
#include "store/cal_codes.h"
#include "store/fault.h"
#include "store/known_parameter.h"
#include "store/refusal_log.h"
#include "store/schema.h"
#include "value/path.h"
#include "value/refusal.h"
#include "value/secret.h"

#include <cstdio>
#include <thread>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace sandbox {
namespace {

// Longer reasons are cut.
thread_local char reasonOfThread[1024];

// One message: what it is called, where it goes, its line in the trace, and what that says of a success.
struct Call {
    const char *operation;
    Trace trace;
    Location location{};
    std::string remark{};

    Call(const char *name, const MsgHeader *message) : operation(name), trace(name, message) {}
};

// False also where the gateway cannot be asked.
bool isKnown(const Location &location, const std::string &object, const std::string &parameter) noexcept {
    try {
        bool known = false;
        Connection::instance().with(location, [&](Database &database) {
            const Transaction transaction(database, Transaction::Kind::Read);
            known = isKnownParameter(database, object, parameter);
        });
        return known;
    } catch (const std::exception &) {
        return false;
    }
}

int refuse(const Call &call, int code, const char *reason) noexcept {
    snprintf(reasonOfThread, sizeof(reasonOfThread), "%s", reason);
    logRefusal(call.location, call.operation, code, reason);
    call.trace.end(call.location.name, code, reasonOfThread, [&call](const auto &object, const auto &parameter) {
        return isKnown(call.location, object, parameter);
    });
    return code;
}

int codeOf(const DatabaseError &error) {
    return error.busy() ? CALTOFAL_STORE_BUSY : error.noMemory() ? CALTOFAL_NO_MEMORY : CALTOFAL_STORE_FAILED;
}

// Runs work(call) and turns what it throws into a code.
template <class Work>
int answer(const char *operation, const MsgHeader *message, Work work) noexcept {
    reasonOfThread[0] = '\0';
    Call call(operation, message);
    try {
        call.location = Location::current();
        work(call);
        call.trace.end(call.location.name, 0, call.remark.c_str(), nullptr);
        return 0;
    } catch (const Refusal &refusal) {
        return refuse(call, refusal.code(), refusal.what());
    } catch (const DatabaseError &error) {
        return refuse(call, codeOf(error), error.what());
    } catch (const std::bad_alloc &) {
        return refuse(call, CALTOFAL_NO_MEMORY, "out of memory");
    } catch (const std::exception &error) {
        return refuse(call, CALTOFAL_STORE_FAILED, error.what());
    }
}

// Waits, or refuses, where faults are ordered for what the message names. Nothing is locked meanwhile.
template <class Request>
void undergoFaults(const Location &location, const char *operation, const std::vector<Request> &requests) {
    std::vector<std::string> keys;
    for (const Request &request : requests) {
        if (const std::optional<std::string> key = keyOf(request.path)) {
            keys.push_back(*key);
        }
    }
    FaultVerdict verdict;
    Connection::instance().with(location,
                                [&](Database &database) { verdict = consumeFaults(database, operation, keys); });
    if (verdict.lateMs > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(verdict.lateMs));
    }
    if (verdict.failing) {
        const Fault &fault = *verdict.failing;
        throw Refusal(*fault.code, "fault " + std::to_string(fault.id) + " hit " +
                                       (fault.object.empty() ? "this request" : pathOf(fault.object)));
    }
}

// "not answered: Device.WiFi.Radio.1.Chanel, ...": a get leaves out what the gateway lacks, which is often a slip.
void remarkMissing(std::string &remark, const GetRequest &request, const std::vector<std::string> &names) {
    for (const std::string &name : names) {
        remark += (remark.empty() ? "not answered: " : ", ") + shownPath(request.path) + "." + shownName(name);
    }
}

int set(MsgHeader *message, const char *operation, int layers) noexcept {
    return answer(operation, message, [&](Call &call) {
        std::vector<SetRequest> requests = setRequests(message);
        undergoFaults(call.location, "set", requests);
        Connection::instance().with(call.location, [&](Database &database) {
            Transaction transaction(database, Transaction::Kind::Write);
            applyRequests(database, requests, layers);
            transaction.commit();
        });
        nameAdded(*message, requests);
    });
}

} // namespace
} // namespace sandbox

using namespace sandbox;

EXPORTED int cal_getValue(MsgHeader *message) {
    return answer("get", message, [&](Call &call) {
        const std::vector<GetRequest> requests = getRequests(message);
        undergoFaults(call.location, "get", requests);
        Answer result;
        Connection::instance().with(call.location, [&](Database &database) {
            const Transaction transaction(database, Transaction::Kind::Read);
            for (const GetRequest &request : requests) {
                result.nextRequest();
                const auto missing = readParameters(
                    database, request, [&result](auto key, auto name, auto value) { result.add(key, name, value); });
                remarkMissing(call.remark, request, missing);
            }
        });
        result.replace(*message);
    });
}

EXPORTED int cal_setValue(MsgHeader *message) {
    return set(message, "set", kEverywhere);
}

EXPORTED int cal_setValueToDb(MsgHeader *message) {
    return set(message, "setToDb", kStored);
}

EXPORTED const char *cal_sandboxReason(void) {
    return reasonOfThread;
}
