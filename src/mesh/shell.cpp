// SPDX-License-Identifier: MIT
// The first line that a shell command prints, in two variants: one insists on an output buffer and clears all of it
// on failure, the other also runs commands for their effect alone.
#include "frame/pipe.h"
#include "frame/trace.h"

#include <cstring>

using namespace frame;

namespace {

constexpr size_t kOutputSize = 128;

bool isEmpty(const char *text) {
    return !text || !*text;
}

bool readFirstLine(const char *command, char *output) {
    constexpr char kFunction[] = "get_from_shell";
    if (isEmpty(command) || !output) {
        traceVola({Unit::MeshGrove, 95, kFunction}, "[ERROR] Received arg CMD [%s] or return buffer is NULL \n",
                  command);
        return false;
    }
    Pipe pipe(command);
    if (!pipe.started()) {
        traceVola({Unit::MeshGrove, 102, kFunction}, "[ERROR] popen failed with [%s] \n", command);
        return false;
    }
    if (!pipe.readLine(output, kOutputSize)) {
        traceVola({Unit::MeshGrove, 110, kFunction}, "[ERROR] fgets function failed. \n");
        return false;
    }
    return true;
}

bool runAndReadFirstLine(const char *command, char *output) {
    constexpr char kFunction[] = "ZINTU_meshgrove_get_from_shell";
    if (isEmpty(command)) {
        traceVola({Unit::MeshGrove, 228, kFunction}, "Received arg CMD is NULL \n");
        return false;
    }
    Pipe pipe(command);
    if (!pipe.started()) {
        traceVola({Unit::MeshGrove, 235, kFunction}, "popen failed with [%s] \n", command);
        return false;
    }
    if (!output) {
        traceVola({Unit::MeshGrove, 243, kFunction}, "Received return buffer is NULL. Skip get return value. \n");
        return false;
    }
    if (!pipe.readLine(output, kOutputSize)) {
        traceVola({Unit::MeshGrove, 249, kFunction}, "fgets function failed. \n");
        return false;
    }
    return true;
}

} // namespace

char *get_from_shell(const char *command, char *output) {
    if (readFirstLine(command, output)) {
        dropTrailingSpace(output);
        return output;
    }
    if (output) {
        memset(output, 0, kOutputSize);
    }
    traceVola({Unit::MeshGrove, 134}, "[ERROR] Received CMD [%s] returns [%s] \n", command, output);
    return output;
}

char *ZINTU_meshgrove_get_from_shell(const char *command, char *output) {
    if (runAndReadFirstLine(command, output)) {
        dropTrailingSpace(output);
    } else if (output) {
        *output = '\0';
    }
    traceVola({Unit::MeshGrove, 272}, "Received CMD [%s] returns [%s] \n", command, output);
    return output;
}
