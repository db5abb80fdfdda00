# SPDX-License-Identifier: MIT
# A gateway of another maker in the box: its own interface names, stations without Active, flags as words or numbers, no
# bands, and the networks that it found itself.
# shellcheck shell=sh disable=SC2016

ssid() { # INSTANCE NAME SSID RADIO
    printf 'Device.WiFi.SSID.%s.%s = %s\n' "$1" Name "$2" "$1" SSID "$3" "$1" LowerLayers "Device.WiFi.Radio.$4" "$1" Enable 1
}
result() { # INSTANCE NAME=VALUE...
    instance=$1
    shift
    printf "Device.WiFi.NeighboringWiFiDiagnostic.Result.$instance.%s\n" "$@" | sed 's/=/ = /'
}
{
    echo '# values as texts'
    printf 'Device.WiFi.Radio.%s.%s = %s\n' 1 Channel 11 1 PossibleChannels '1-3, 11' 1 Enable True \
        2 Channel 36 2 PossibleChannels 36-44 2 Enable 1
    ssid 1 ath0 net 1
    ssid 2 wl1.1 net5 2
    ssid 3 '' 'my home net' 1
    ssid 4 'my/lan 2' net4 2
    printf 'Device.WiFi.AccessPoint.1.%s = %s\n' SSIDReference Device.WiFi.SSID.1 AssociatedDevice.1.MACAddress 02:00:5E:00:00:01 \
        AssociatedDevice.1.SignalStrength -60 AssociatedDevice.2.MACAddress 02:00:5E:00:00:02 AssociatedDevice.2.Active 0
    result 1 'SSID=Next door' BSSID=02:00:5E:11:11:11 Channel=6 SignalStrength=-70 SecurityModeEnabled=WPA-WPA2 \
        'EncryptionMode=TKIP, AES' OperatingStandards=b,g,n OperatingChannelBandwidth=40MHz
    result 2 'SSID=Far' Channel=100 SecurityModeEnabled=None
} | tool import other - 2>/dev/null

export CALTOFAL_BOX_SCAN_MS=100
expect 'interfaces by the names that the gateway gives' 'ath0 wl1.1' "$(in_box other 'ls /proc/net/mtlk' | paste -sd ' ')"
expect 'no configuration of an SSID without an interface' 'hostapd_ath0.conf hostapd_wl1.1.conf interface=wl1.1 ssid=net5' \
    "$(in_box other 'cd /opt/lantiq/wave/confs && ls && cat hostapd_wl*' | paste -sd ' ')"
expect 'stations without Active are there, inactive ones are not' '02:00:5E:00:00:01' \
    "$(in_box other 'sed -n "s/ *\(.*\) : STA MAC/\1/p" /proc/net/mtlk/ath0/PeerFlowStatus')"
expect 'radios by their place' 'phy0 phy1' "$(in_box other 'for i in ath0 wl1.1; do iw dev $i info; done' | sed -n 's/.*wiphy /phy/p' | paste -sd ' ')"
expect 'their channels' '1|2|3|11 36|40|44' "$(in_box other 'for p in phy0 phy1; do iw phy $p show_channel | cut -d " " -f 1 | paste -sd "|"; done' | paste -sd ' ')"

scan() { # INTERFACE: the result and where it comes from
    in_box "$1" '. /opt/lantiq/etc/ugw_notify_defs.sh
        ubus call servd notify "{\"nid\": $NOTIFY_WIFI_SCAN_ACTION, \"pn1\": \"Action\", \"pv1\": \"SCAN\", \"pn2\": \"Name\", \"pv2\": \"$0\"}"
        file=/tmp/wlan_wave/${0}_scan_by_User
        for i in $(seq 100); do [ -e $file.result ] && break; usleep 50000; done
        cat $file.source $file.result' "$2" | tr '\t' '|'
}
expect 'a scan shows what the gateway found' 'gateway
Next door|6|-70|WPA2/WPA-PSK|TKIP+AES|02:00:5E:11:11:11|40|802.11b+g+n|auto|0' "$(scan other ath0)"
expect 'in the band of the interface' 'gateway
Far|100|0|NONE|NONE|00:00:00:00:00:00|20|unknown|auto|0' "$(scan other wl1.1)"
expect 'else the box makes networks up and says so' 'made-up 7' "$(scan dhcp wlan0 | awk 'NR == 1 { origin = $0 } END { print origin, NR - 1 }')"
printf '2.4GHz\tOwn list\t6\t-50\tNONE\tNONE\t02:00:5E:00:00:09\t20\t802.11n\tauto\t0\n' >"$CALTOFAL_SANDBOX_DIR/other.box/neighbours.tsv"
expect 'a list beside the gateway comes first' 'file Own list' "$(scan other ath0 | cut -d '|' -f 1 | paste -sd ' ')"

# A list with a mistake ends the box before its command, and a scan while it is open.
list=$CALTOFAL_SANDBOX_DIR/other.box/neighbours.tsv
good='2.4GHz\tOwn list\t6\t-50\tNONE\tNONE\t02:00:5E:00:00:09\t20\t802.11n\tauto\t0'
wrong_list() { # SED_EXPRESSION WHAT: the line after a comment, an empty one and a good one
    printf '# networks\n\n%b\n%b\n' "$good" "$good" | sed "4 $1" >"$list"
    expect "$2 is named" "caltofal-device-model: $list:4: $3|1" "$({
        tool run -g other -- echo ran 2>&1
        echo $?
    } | grep -v 'start script' | paste -sd '|')"
}
wrong_list 's/\t0$//' 'a missing column' 'a network has 11 columns with tabs between them, this line 10'
wrong_list 's/2.4GHz/2GHz/' 'a wrong band' 'column 1, the band, is not 2.4GHz, 5GHz or 6GHz'
wrong_list 's/-50/-50dBm/' 'a wrong signal' 'column 4, the signal, is not a whole number of dBm'
wrong_list 's/:09/:9/' 'a wrong BSSID' 'column 7, the BSSID, is not six pairs of hexadecimal digits with colons'
wrong_list 's/0$/yes/' 'a wrong flag' 'column 11, the product, is not 0 or 1'
printf '%b\n' "$good" >"$list"
export list
expect 'a list that goes wrong in an open box' "scan: caltofal-device-model: $list:1: a network has 11 columns with tabs between them, this line 1" "$(in_box other '
    . /opt/lantiq/etc/ugw_notify_defs.sh
    echo wrong >/opt/lantiq/var/neighbours.tsv
    ubus call servd notify "{\"nid\": $NOTIFY_WIFI_SCAN_ACTION, \"pn1\": \"Action\", \"pv1\": \"SCAN\", \"pn2\": \"Name\", \"pv2\": \"ath0\"}"
    for i in $(seq 60); do caltofal-sandbox console -m -g other | grep -q neighbours.tsv: && break; usleep 50000; done
    caltofal-sandbox console -m -g other' | sed -n 's/.*servd: \(scan: .*neighbours.tsv:.*\)/\1/p')"
