// SPDX-License-Identifier: MIT
#include "wifi/convert/hex_text.h"

#include "caltofal.h"

#include <cstring>

using namespace wifi;

int ConvHexDecToCharStr(const char *hex, char *out) {
    const size_t pairs = strlen(hex) / 2;
    for (size_t i = 0; i < pairs; ++i) {
        const unsigned value = hexValue(hex[2 * i]) * 16U | hexValue(hex[2 * i + 1]);
        out[i] = static_cast<char>(value);
    }
    out[pairs] = '\0';
    return 1;
}

int ConvCharStrToHexDec(const char *bytes, int count, char *out) {
    constexpr char kDigits[] = "0123456789abcdef";
    char *next = out;
    for (int i = 0; i < count; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        *next++ = kDigits[byte / 16];
        *next++ = kDigits[byte % 16];
    }
    *next = '\0';
    return 1;
}
