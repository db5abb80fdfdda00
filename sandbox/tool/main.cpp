// SPDX-License-Identifier: MIT
//
// caltofal-sandbox: makes, shows and changes the gateways that the sandbox's libcal serves.
#include "caltofal.h"
#include "help/typed_values.h"
#include "store/store.h"
#include "tool/command.h"
#include "value/refusal.h"

#include <iostream>

namespace sandbox {
namespace {

int fail(const std::exception &error, int exitCode) {
    std::cerr << "caltofal-sandbox: " << help::withoutTypedValues(error.what()) << '\n';
    return exitCode;
}

int run(int argc, char **argv) {
    Tool tool;
    try {
        runCommandLine(argc, argv, tool);
        std::cout.flush();
        if (!std::cout) {
            throw Failure("standard output cannot be written");
        }
        return tool.exitCode;
    } catch (const Failure &failure) {
        return fail(failure, failure.code());
    } catch (const WrongName &refusal) {
        return fail(refusal, kUsage);
    } catch (const Refusal &refusal) {
        const bool absent = refusal.code() == CALTOFAL_NO_GATEWAY || refusal.code() == CALTOFAL_ABSENT_OBJECT;
        return fail(refusal, absent ? kAbsent : kFailed);
    }
}

} // namespace
} // namespace sandbox

int main(int argc, char **argv) {
    help::noteTypedWords(argc, argv);
    try {
        return sandbox::run(argc, argv);
    } catch (const std::exception &error) {
        return sandbox::fail(error, sandbox::kFailed);
    }
}
