# SPDX-License-Identifier: MIT
# What the device's programs share. To be sourced.
# shellcheck shell=dash disable=SC2034

var=/opt/lantiq/var # kept with the gateway
wave=/tmp/wlan_wave
recorded=/run/recorded # what a captured gateway's files and tools said, laid out when the box opens

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

# Plays back what was recorded of a command, and ends as it did. Goes on where nothing was: play COMMAND [ARGUMENT...]
play() {
    answer=$recorded/answers/$(echo "$*" | tr '/ ' ':+')
    if [ -e "$answer" ]; then
        cat "$answer"
        exit "$(cat "$answer.code")"
    fi
    [ -z "$CALTOFAL_BOX_RECORDED_ONLY" ] || complain 1 "$*: not recorded"
}

# Writes standard input to a file at once: readers see all of it or what was there before.
replace() {
    draft=$(mktemp "${1%/*}/.${1##*/}.XXXXXX") || return
    chmod 644 "$draft" && cat >"$draft" && mv "$draft" "$1"
}
