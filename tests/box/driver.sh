# SPDX-License-Identifier: MIT
# The wireless tools and the driver's files, asked as the library asks them.
# shellcheck shell=sh disable=SC2016

tab=$(printf '\t')

# GetPhyNumber, GetChannelList, GetCurrentChannel
expect 'number of the physical radio' "${tab}wiphy 0|${tab}wiphy 2|${tab}wiphy 1" "$(in_box home '
    for i in wlan0.0 wlan2 wlan1; do iw dev $i info | grep "wiphy"; done' | paste -sd '|')"
expect 'no such interface' ':237' "$(in_box home 'printf %s "$(iw dev wlan9 info 2>/dev/null | grep "wiphy")"
    iw dev wlan9 info 2>/dev/null; echo ":$?"')"
listings=$(in_box home 'iw phy phy0 show_channel; iw phy phy2 show_channel; iwlist wlan2 channel')
for line in \
    '1 2412 - - 40+ - -' '6 2437 - - 40+ 40- -' '13 2472 - - - 40- -' \
    '36 5180 - 80 40+ - -' '48 5240 - 80 - 40- -' '52 5260 - 80 40+ - DFS' '136 5680 - - - 40- DFS' \
    '140 5700 - - - - DFS' '          Channel 136 : 5.680 GHz' '          Current Channel=36'; do
    expect "the line \"$line\"" "$line" "$(echo "$listings" | grep -Fx -e "$line")"
done
expect 'number of channels' 32 "$(echo "$listings" | grep -c '^[0-9]')"

# A radio that does 160 MHz, on another channel, says so; one that is off has no channel.
tool import home /dev/stdin --format csv >/dev/null 2>&1 <<'CSV'
path,value
Device.WiFi.Radio.2.SupportedOperatingChannelBandwidths,"20MHz,40MHz,80MHz,160MHz"
Device.WiFi.Radio.2.Channel,64
Device.WiFi.Radio.1.Enable,false
CSV
listings=$(in_box home 'iw phy phy2 show_channel; iwlist wlan2 channel; iwlist wlan0 channel' | grep -E '^(64|132) |Current')
expect '160 MHz and a changed channel' \
    '64 5320 160 80 - 40- DFS|132 5660 - - 40+ - DFS|          Current Channel=64' "$(echo "$listings" | paste -sd '|')"

# GetStaInfo
expect 'stations with their antennas' "\
00:00:5E:00:53:10 : STA MAC
-46 : Short-term RSSI average per antenna 1, dBm
-49 : Short-term RSSI average per antenna 2, dBm
-45 : Short-term RSSI average per antenna 3, dBm
-48 : Short-term RSSI average per antenna 4, dBm
00:00:5E:00:53:12 : STA MAC" "$(in_box home 'cat /proc/net/mtlk/wlan2/PeerFlowStatus | grep '"'"'STA MAC\| Short-term RSSI average per antenna'"'"' > /tmp/wlan_wave/sta_info_wlan2
    head -n 6 /tmp/wlan_wave/sta_info_wlan2' | sed 's/^ *//')"
expect 'absent antennas' '2 of -128' "$(in_box dhcp 'cat /proc/net/mtlk/wlan0/PeerFlowStatus | grep -c -e -128' |
    sed 's/$/ of -128/')"
expect 'a radio that is off has no stations' 0 "$(in_box home 'grep -c . /proc/net/mtlk/wlan0/PeerFlowStatus')"

# GetEPContection, ReqEPChannelInfo
peer='cat /proc/net/mtlk/$i/PeerFlowStatus | grep "STA MAC" | sed -e '"'s/: STA MAC//' -e 's/\\t//' -e 's/ //g'"' > /tmp/wlan_wave/${i}_peer_info; cat /tmp/wlan_wave/${i}_peer_info'
figures='cat /proc/net/mtlk/$i/channel | grep -e width: -e primary_channel: | sed '"'s/[^0-9]*//g'"
expect 'the uplink of a repeater' '02:00:5E:10:01:01 20 6' "$(in_box repeater "i=wlan1; $peer; $figures" | paste -sd ' ')"
expect 'the uplink of a bridge' '02:00:5E:40:02:02 80 60' "$(in_box bridge "i=wlan3; $peer; $figures" | paste -sd ' ')"
expect 'an idle end point' '' "$(in_box home "i=wlan1; $peer")"

# The files follow the gateway while the box is open.
expect 'a station table that changes' '1 0' "$(in_box atm '
    stations() { grep -c "STA MAC" /proc/net/mtlk/wlan0/PeerFlowStatus; }
    printf "%s " "$(stations)"
    echo "Device.WiFi.AccessPoint.1.AssociatedDevice.1.Active = false" | caltofal-sandbox import atm /dev/stdin --format tr181 >&2
    for i in $(seq 100); do [ "$(stations)" = 0 ] && break; usleep 50000; done
    stations' 2>/dev/null)"

# zintu_scapi_getMacFromFile opens it for appending.
expect 'the address file' 'eth0_1>02:00:5E:10:00:01' "$(in_box home ': >>/opt/lantiq/etc/nextmac.conf && grep eth0_1 /opt/lantiq/etc/nextmac.conf')"
