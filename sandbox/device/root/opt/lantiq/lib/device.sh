# SPDX-License-Identifier: MIT
# What the device's programs share. To be sourced.
# shellcheck shell=dash disable=SC2034

var=/opt/lantiq/var # kept with the gateway
wave=/tmp/wlan_wave

# What a program asks of the gateway's model; `device_model` alone tells what there is.
device_model() {
    /opt/lantiq/libexec/caltofal-device-model "$@"
}

# A wireless interface's figures as variables. 1 when there is no such interface.
load_interface() {
    figures=$(device_model interface "$1") || return
    index='' phy='' type='' ssid='' bssid='' up='' radio_on='' band='' channel='' frequency='' width=''
    eval "$figures"
}

# Ends with a line on standard error: complain EXIT_CODE WORDS...
complain() {
    complaint_code=$1
    shift
    echo "$*" >&2
    exit "$complaint_code"
}

# Writes standard input to a file at once: readers see all of it or what was there before.
replace() {
    draft=$(mktemp "${1%/*}/.${1##*/}.XXXXXX") || return
    chmod 644 "$draft" && cat >"$draft" && mv "$draft" "$1"
}
