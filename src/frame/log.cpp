// SPDX-License-Identifier: MIT
#include "frame/log.h"

#include <cstdio>
#include <ctime>
#include <sys/time.h>
#include <syslog.h>

uint16_t unfaltocalLogType = 1;
uint16_t unfaltocalLogLevel = 5;

namespace frame {
namespace {

constexpr uint16_t kToSyslog = 1;
constexpr uint16_t kToStdout = 2;

struct Level {
    int priority;
    const char *label;
    const char *colour;
};

void printPrefix(const Level &level) {
    timeval now{};
    gettimeofday(&now, nullptr);
    char time[50] = "";
    if (const tm *local = localtime(&now.tv_sec)) {
        strftime(time, sizeof(time), "%d-%m-%Y %T", local);
    }
    char prefix[256];
    snprintf(prefix, sizeof(prefix), "%s<%s> [%s] ", level.colour, time, level.label);
    fputs(prefix, stdout);
}

// The formats are the literals of this library's call sites, but reach printf through a parameter.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
void writeMessage(const Level &level, const char *format, const char *tag, int line, const char *detail) {
    if (unfaltocalLogLevel < level.priority) {
        return;
    }
    if ((unfaltocalLogType & kToSyslog) != 0) {
        syslog(level.priority, format, tag, line, detail);
    }
    if ((unfaltocalLogType & kToStdout) != 0) {
        printPrefix(level);
        printf(format, tag, line, detail);
        fputs("\033[0m", stdout);
        fflush(stdout);
    }
}
#pragma GCC diagnostic pop

} // namespace

void logCritical(const char *format, const char *tag, int line) {
    writeMessage({LOG_CRIT, "CRITICAL", "\033[31m"}, format, tag, line, "");
}

void logError(const char *format, const char *tag, int line, const char *detail) {
    writeMessage({LOG_ERR, "ERROR", "\033[38;5;214m"}, format, tag, line, detail);
}

} // namespace frame
