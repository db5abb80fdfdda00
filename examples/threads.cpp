// SPDX-License-Identifier: MIT
// Pages in several threads: each has its own records, nothing else is to be done.
#include <caltofal.h>
#include <cstdio>
#include <thread>

int main() {
    LANv4Info lan{};
    ZintuDslLineInfo line{};
    int32_t lanCode = -1;
    int32_t lineCode = -1;
    std::thread lanPage([&] { lanCode = ZintuGet_LANv4Info(&lan); });
    std::thread linePage([&] { lineCode = ZintuGet_LineInfo(&line); });
    lanPage.join();
    linePage.join();
    if (lanCode != 0 || lineCode != 0) {
        return 1;
    }
    printf("LAN %.16s, lease %d s\n", lan.sIPv4Address, lan.nLeaseTimeSec);
    printf("DSL %.16s, %d kbit/s down, margin %.1f dB\n", line.sStatus, line.nDownstreamCurrRate,
           line.nDownstreamNoiseMargin / 10.0);
    return 0;
}
