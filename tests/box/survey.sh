# SPDX-License-Identifier: MIT
# Scan requests as ReqScan makes them.
# shellcheck shell=sh disable=SC2016

# The library's command line, with the action, the interface and the network to look for.
scan_format=$(
    cat <<'LINE'
source /opt/lantiq/etc/ugw_notify_defs.sh; ubus call servd notify '{"nid": '$NOTIFY_WIFI_SCAN_ACTION',"type": false,"pn1": "Action", "pv1": "%s","pn2": "Name", "pv2": "%s", "pn3": "SSID", "pv3": "%s"}'>/dev/null
LINE
)
helpers='
    result=/tmp/wlan_wave/${interface}_scan_by_User.result
    await() { for i in $(seq 100); do [ -e $result ] && return; usleep 50000; done; }
'

# scan GATEWAY INTERFACE SSID WHAT: requests a scan and then does what is said in the box.
scan() {
    # shellcheck disable=SC2059
    request=$(printf "$scan_format" SCAN "$2" "$3") interface=$2 in_box "$1" "$helpers"'/bin/sh -c "$request"; '"$4"
}

export CALTOFAL_BOX_SCAN_MS=100

scan dhcp wlan0 '' await
scan dhcp wlan2 '' await
results=$CALTOFAL_SANDBOX_DIR/dhcp.box/wlan_wave
networks() { cut -f 1 "$results/$1_scan_by_User.result" | paste -sd '|'; }
expect 'networks at 2.4 GHz, one of them hidden' \
    'VOLA Upstream|VOLA Home|Blue Door 3rd floor|Grüße vom Dach ☂||cafe-open|printer-direct' "$(networks wlan0)"
expect 'networks at 5 GHz' \
    'Upstream 5G|VOLA Upstream 5G|VOLA Home 5G|Blue Door 3rd floor|Grüße vom Dach ☂|Office 802.1X' "$(networks wlan2)"
expect 'ten columns in every line, none longer than 127 bytes' 13 \
    "$(LC_ALL=C awk -F '\t' 'NF == 10 && length($0) < 127' "$results"/*.result | wc -l)"
tab=$(printf '\t')
expect 'a whole line' "Blue Door 3rd floor${tab}52${tab}-71${tab}WPA2-PSK${tab}AES${tab}02:00:5E:41:02:01${tab}80${tab}802.11a+n+ac${tab}upper${tab}0" \
    "$(grep Blue "$results/wlan2_scan_by_User.result")"

expect 'an earlier result is gone while a scan runs' 'gone' \
    "$(scan dhcp wlan0 'Blue Door 3rd floor' '[ -e $result ] || echo gone; await')"
expect 'the wanted network only' 'Blue Door 3rd floor' "$(networks wlan0)"
scan dhcp wlan0 'Grüße vom Dach ☂' await
expect 'a wanted network beyond ASCII' 'Grüße vom Dach ☂' "$(networks wlan0)"
scan dhcp wlan0 nowhere await
expect 'a network that is not there leaves an empty result' '0' "$(wc -c <"$results/wlan0_scan_by_User.result")"

scan home wlan0 '' await
expect "a gateway does not hear itself" '' "$(grep 'VOLA Home' "$CALTOFAL_SANDBOX_DIR/home.box/wlan_wave/wlan0_scan_by_User.result")"

# What is not a request: the exit code is the bus client's, nothing else happens.
before=$(ls -l "$results")
for request in '{"nid": 138,"type": false,"pn1": "Action", "pv1": "SCAN","pn2": "Na' '{"type": false}' '[138]' \
    '{"nid": 138, "pn1": "Action", "pv1": 5}' '{"nid": 138, "pn1": "Action"}'; do
    expect "refusal of $request" '2 Command failed: Invalid argument' \
        "$(in_box dhcp 'why=$(ubus call servd notify "$1" 2>&1 >/dev/null); echo "$? $why"' - "$request")"
done
# shellcheck disable=SC2059
expect 'a command that was cut before its quote was closed' '2' \
    "$(request=$(printf "$scan_format" SCAN wlan0 '' | cut -c 1-200) in_box dhcp 'sh -c "$request" 2>/dev/null; echo $?')"
scan dhcp wlan9 '' 'ubus call servd notify "{\"nid\": 137, \"pn1\": \"Action\", \"pv1\": \"PBC\"}"; sleep 0.3'
expect 'nothing done' "$before" "$(ls -l "$results")"
expect 'a method that is not there' '3 4' "$(in_box dhcp '
    ubus call servd reload 2>/dev/null; printf "%s " $?; ubus call nobody notify 2>/dev/null; echo $?')"

# A request outlives its box: the next one finishes it.
CALTOFAL_BOX_SCAN_MS=1000 scan static wlan0 cafe-open :
results=$CALTOFAL_SANDBOX_DIR/static.box/wlan_wave
expect 'not yet done' '' "$(ls "$results")"
interface=wlan0 in_box static "$helpers await"
expect 'done in the next box' 'cafe-open' "$(networks wlan0)"
