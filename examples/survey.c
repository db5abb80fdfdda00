// SPDX-License-Identifier: MIT
/* A site survey: what is checked before texts reach the shell. survey INTERFACE [SSID] */
#include <caltofal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

enum { kInterfaceMax = 15, kSsidMax = 32, kBothMax = 46 /* of what a scan request carries */, kHighest24GHz = 14 };

/* Letters, digits, dots, underscores and dashes, a letter first: no path, no option, nothing for a shell. */
static int isInterface(const char *name) {
    static const char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    static const char kAllowed[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-";
    return *name && strspn(name, kLetters) > 0 && name[strspn(name, kAllowed)] == '\0' && strlen(name) <= kInterfaceMax;
}

/* The SSID stands in JSON within single quotes: quotes, backslashes and control characters can not travel. */
static int isPlainSsid(const char *ssid) {
    for (const char *c = ssid; *c; ++c) {
        if (strchr("'\"\\\x7f", *c) || (unsigned char)*c < ' ') {
            return 0;
        }
    }
    return strlen(ssid) <= kSsidMax;
}

/* How long a scan takes depends on the band. An interface that names no channel gets the longer time. */
static const uint8_t *pausesOf(const char *ifname) {
    int channel = 0;
    GetCurrentChannel(ifname, 0, &channel);
    return channel >= 1 && channel <= kHighest24GHz ? SCAN_24G_RetryTime : SCAN_5G_RetryTime;
}

/* 1 when the result file is there, be it empty, 0 when the time for a scan is over. A scan of the sandbox removes the
 * last result; elsewhere do that first. */
static int waitFor(const char *path, const uint8_t *pauses) {
    for (size_t i = 0; i < sizeof(SCAN_5G_RetryTime); ++i) {
        for (int seconds = pauses[i]; seconds > 0; --seconds) {
            sleep(1);
            if (access(path, F_OK) == 0) {
                return 1;
            }
        }
    }
    return 0;
}

/* Any stranger chooses these bytes: none of them steers the terminal. */
static void printSsid(const char *ssid) {
    for (; *ssid; ++ssid) {
        putchar((unsigned char)*ssid < ' ' || *ssid == '\x7f' ? '.' : *ssid);
    }
    putchar('\n');
}

int main(int argc, char **argv) {
    const char *ifname = argc > 1 ? argv[1] : "";
    const char *ssid = argc > 2 ? argv[2] : "";
    if (!isInterface(ifname) || !isPlainSsid(ssid) || strlen(ifname) + strlen(ssid) > kBothMax) {
        fputs("survey: these can not be asked for\n", stderr);
        return 2;
    }
    if (GetPhyNumber(ifname) < 0) { /* ReqScan() only starts the shell: do not wait for what can not come */
        fprintf(stderr, "survey: no radio has the interface %s\n", ifname);
        return 1;
    }
    char path[128];
    snprintf(path, sizeof(path), "/tmp/wlan_wave/%s_scan_by_User.result", ifname);
    if (ReqScan(ifname, ssid) != 1 || !waitFor(path, pausesOf(ifname))) {
        fputs("survey: no result\n", stderr);
        return 1;
    }
    SiteSurveyList list = {0};
    if (GetSiteSurveyList(path, &list, ssid) == 0) {
        fputs("survey: no such network\n", stderr);
    }
    for (int i = 0; i < list.count; ++i) {
        printf("channel %3d  %4d  ", (int)list.entries[i].channel, (int)list.entries[i].rssi);
        printSsid(list.entries[i].ssid);
    }
    free(list.entries);
    return 0;
}
