# SPDX-License-Identifier: MIT
# WPS requests as ReqWPSActive, ReqWPSCancel and ReqWPSReset make them.
# shellcheck shell=sh disable=SC2016

# The library's command line, with the action; a newline ends it.
wps_format=$(
    cat <<'LINE'
source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{"notify_id": '$NOTIFY_WIFI_WPS_ACTION', "type": false, "pn1": "Action", "pv1": "%s"}' > /dev/null
LINE
)
export wps_format
wps='
    request() { /bin/sh -c "$(printf "$wps_format\n" "$1")"; }
    status() { cat /tmp/wlan_wave/wps_status; }
    await() { for i in $(seq 100); do [ "$(status)" = $1 ] && break; usleep 50000; done; status; }
    configured() { caltofal-sandbox export $CALTOFAL_GATEWAY Device.WiFi.AccessPoint.1.WPS. --stored | grep "AccessPoint.1.WPS.Status"; }
    stations() { grep -c "STA MAC" /proc/net/mtlk/wlan0/PeerFlowStatus; }
'
export CALTOFAL_BOX_WPS_MS=200

expect 'a run: in progress, then a new station' 'InProgress 2 Success 3' "$(in_box home "$wps"'
    request PBC; status; stations; await Success
    for i in $(seq 100); do [ "$(stations)" = 3 ] && break; usleep 50000; done; stations' | paste -sd ' ')"
expect 'the same station again is no new one' 'Success 3' "$(in_box home "$wps"'
    request PBC; await Success; sleep 0.3; stations' | paste -sd ' ')"
expect 'a boot forgets the station' 2 "$(tool boot home >/dev/null; in_box home "$wps stations")"

expect 'reset and a new run' 'Idle Unconfigured Success Configured' "$(in_box home "$wps"'
    request ResetWPS; status; configured; request PBC; await Success; configured' |
    sed 's/.* = //' | paste -sd ' ')"
expect 'cancelled, and it stays so' 'Cancelled Cancelled' "$(in_box home "$wps"'
    request PBC; request CancelWPS; status; sleep 0.5; status' | paste -sd ' ')"
expect 'nothing to cancel' 'Cancelled' "$(in_box home "$wps request CancelWPS; status")"
expect 'nobody presses the other button, nobody joins or leaves' 'InProgress Timeout 3' "$(CALTOFAL_BOX_WPS=timeout in_box home "$wps"'
    request PBC; status; await Timeout; stations' | paste -sd ' ')"
expect 'a gateway without WPS settings' 'Success' "$(in_box dhcp "$wps"'request PBC; await Success')"

printf '%s\n' 'Device.WiFi.AccessPoint.1.WPS.Enable = false' 'Device.WiFi.AccessPoint.9.WPS.Enable = false' |
    tool import home /dev/stdin --format tr181 >/dev/null 2>&1
expect 'WPS switched off everywhere' 'Failed' "$(in_box home "$wps request PBC; status")"
