// SPDX-License-Identifier: MIT
/* Prints "FUNCTION ARGUMENT" for each argument that reaches a shell as it is: the table of SECURITY.md. The program's
 * own popen() and system() take the place of libc's and run nothing. The gateway's endpoint has the mark for its
 * interface. */
#include <caltofal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static char commands[4096];

int system(const char *command) {
    strncat(commands, command, sizeof(commands) - strlen(commands) - 1);
    return 0;
}

FILE *popen(const char *command, const char *mode) {
    system(command);
    return fopen("/dev/null", mode);
}

int pclose(FILE *stream) {
    return fclose(stream);
}

static const char kMark[] = "x;$(mark)";

static void report(const char *function, const char *argument) {
    if (strstr(commands, kMark)) {
        printf("%s %s\n", function, argument);
    }
    commands[0] = '\0';
}

#define TRY(function, argument, call)                                                                                  \
    do {                                                                                                               \
        (void)(call);                                                                                                  \
        report(#function, #argument);                                                                                  \
    } while (0)

int main(void) {
    static WifiChannelList channels;
    static WifiStaList stations;
    SiteSurveyList survey = {0};
    char text[128];
    int channel;
    strcpy(text, kMark);
    TRY(get_from_shell, command, get_from_shell(kMark, text));
    TRY(ZINTU_meshgrove_get_from_shell, command, ZINTU_meshgrove_get_from_shell(kMark, NULL));
    strcpy(text, kMark);
    TRY(ZINTU_meshgrove_get_IP_from_MAC, mac, ZINTU_meshgrove_get_IP_from_MAC(text));
    TRY(ZINTU_meshgrove_sync_to_slave, none, ZINTU_meshgrove_sync_to_slave());
    TRY(GetPhyNumber, ifname, GetPhyNumber(kMark));
    TRY(GetChannelList, ifname, GetChannelList(kMark, 1, &channels));
    TRY(GetCurrentChannel, ifname, GetCurrentChannel(kMark, 0, &channel));
    TRY(GetStaInfo, ifname, GetStaInfo(kMark, NULL, &stations));
    TRY(GetStaInfo, macFilter, GetStaInfo("wlan0", kMark, &stations));
    TRY(GetEPContection, ifname, GetEPContection(kMark, NULL));
    TRY(ReqEPChannelInfo, ifname, ReqEPChannelInfo(kMark, NULL));
    TRY(ReqScan, ifname, ReqScan(kMark, ""));
    TRY(ReqScan, ssid, ReqScan("wlan0", kMark));
    TRY(CombineScanResultFiles, first, CombineScanResultFiles(kMark, "b", "c"));
    TRY(CombineScanResultFiles, second, CombineScanResultFiles("a", kMark, "c"));
    TRY(CombineScanResultFiles, target, CombineScanResultFiles("a", "b", kMark));
    TRY(GetFileLineCnt, path, GetFileLineCnt(kMark));
    TRY(GetSiteSurveyList, path, GetSiteSurveyList(kMark, &survey, kMark));
    TRY(GetDeviceID, identifier, GetDeviceID(text));
    TRY(Remove_Confs_File, none, Remove_Confs_File());
    TRY(ReqWPSActive, none, ReqWPSActive());
    TRY(GetEPConnectionStatus, name, GetEPConnectionStatus(NULL));
    return 0;
}
