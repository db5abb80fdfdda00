// SPDX-License-Identifier: MIT
// Whether a text is a MAC address or an IPv4 address.
#include "caltofal.h"
#include "frame/log.h"

#include <arpa/inet.h>
#include <regex.h>

using namespace frame;

namespace {

constexpr char kMacPattern[] = "^[0-9A-F][0-9A-F]:[0-9A-F][0-9A-F]:[0-9A-F][0-9A-F]:"
                               "[0-9A-F][0-9A-F]:[0-9A-F][0-9A-F]:[0-9A-F][0-9A-F]$";

} // namespace

int zintu_isValidMacAddress(const char *mac) {
    if (!mac || !*mac) {
        return -1;
    }
    constexpr char kTag[] = "zintu_isValidMacAddress";
    regex_t expression;
    if (regcomp(&expression, kMacPattern, REG_ICASE) != 0) {
        logError("faltocal{%s, %d}:Could not compile xRegex\n", kTag, 1301);
        return -1;
    }
    const int result = regexec(&expression, mac, 0, nullptr, 0);
    if (result != 0 && result != REG_NOMATCH) {
        char reason[100];
        regerror(result, &expression, reason, sizeof(reason));
        logError("faltocal{%s, %d}:Regex match failed: %s\n", kTag, 1313, reason);
    }
    regfree(&expression);
    return result == 0 ? 0 : -1;
}

int zintu_isValidIPv4Address(const char *address) {
    in_addr parsed;
    return address && inet_pton(AF_INET, address, &parsed) == 1 ? 0 : -1;
}
