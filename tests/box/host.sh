# SPDX-License-Identifier: MIT
# What a program sees in the box, and how it ends.
# shellcheck shell=sh disable=SC2016

run() { tool run "$@"; }

# Exit codes, arguments, environment, current directory, standard streams
run -- sh -c 'exit 42'
expect 'exit code' 42 $?
run -- sh -c 'kill -TERM $$'
expect 'end by a signal' 143 $?
run -- no-such-program 2>/dev/null
expect 'a program that is not there' 127 $?
expect 'arguments as they are' '[a b][*][--][-g]' "$(run -- printf '[%s]' 'a b' '*' -- -g)"
expect 'environment' "$HOME|yes|dhcp|1" "$(OWN=yes run -g dhcp -- sh -c 'echo "$HOME|$OWN|$CALTOFAL_GATEWAY|$CALTOFAL_BOX"')"
expect 'standard input, current directory' "through $PWD" "$(echo through | run -- sh -c 'read -r x; echo "$x $PWD"')"
expect 'standard error' 'oops' "$(run -- sh -c 'echo oops >&2' 2>&1 >/dev/null)"
expect 'a box in the box' 'inside 7' "$(run -- sh -c 'caltofal-sandbox run -- sh -c "echo inside; exit 7"; echo $?' | paste -sd ' ')"
expect 'of another gateway' 1 "$(run -- sh -c 'caltofal-sandbox run -g mesh -- true 2>/dev/null; echo $?')"
expect 'the shell' 'ash 5' "$({
    echo 'source /dev/null && readlink -f /proc/$$/exe | grep -q busybox && echo ash; exit 5' | tool shell
    echo $?
} | paste -sd ' ')"

# The trace of the command's messages, on standard error and in a file that the box does not have of itself
expect 'messages on standard error' 'home caltofal[PID] get 0 ok US Device.IPv6' "$(
    run --trace -- caltofal get Device.IPv6 2>&1 >/dev/null | cut -d ' ' -f 2- | sed -E 's/\[[0-9]+\]/[PID]/; s/[0-9]+us/US/')"
expect 'messages in a file' 'Device.IPv6' "$(
    CALTOFAL_SANDBOX_TRACE=../trace run -- caltofal get Device.IPv6 >/dev/null && cut -d ' ' -f 8- ../trace)"

# What is writable, what is kept
expect 'the current directory is the host'\''s' 'kept' "$(run -- sh -c 'echo kept >file' && cat file)"
expect 'the store, by the library'\''s road' 'Device.WiFi.Radio.1.Channel = 9' "$(
    run -- sh -c 'echo "Device.WiFi.Radio.1.Channel = 9" | caltofal-sandbox import home /dev/stdin --format tr181' >/dev/null 2>&1
    tool export home Device.WiFi.Radio.1. | grep '^Device.WiFi.Radio.1.Channel ')"
expect '/usr is not writable' 'refused' "$(run -- sh -c 'true 2>/dev/null >/usr/box-test || echo refused')"
expect 'emptied configuration stays empty' '18 0' "$(
    for _ in 1 2; do run -g dhcp -- sh -c 'ls /opt/lantiq/wave/confs | wc -l; rm -rf /opt/lantiq/wave/confs/*'; done | paste -sd ' ')"
expect 'a directory shown on demand' "$(id -un)" "$(d=$(mktemp -d); id -un >"$d/who"; run -b "$d" -- cat "$d/who"; rm -r "$d")"

# /proc
expect 'processes and the network are seen' 'yes' "$(run -- sh -c '
    [ -r /proc/$$/status ] && [ -r /proc/self/exe ] && [ -r /proc/net/dev ] && [ -r /proc/meminfo ] && echo yes')"
expect 'process numbers beyond the first stock' 'yes' "$(run -- sh -c '
    i=0; while [ $i -lt 3000 ]; do (:); i=$((i + 1)); done; sleep 1.5; sleep 1 &
    [ -r /proc/$!/status ] && [ $! -gt 2500 ] && echo yes')"

# The console: opened anew for each line and not for appending, yet no line is lost; the log takes what goes to syslog.
run -g static -- sh -c 'for i in 1 2 3; do echo "line $i" 1<>/dev/console; done; logger -t test "to the log"'
run -g static -- sh -c 'seq 20000 >/dev/console'
expect 'console' 'line 1|line 2|line 3|1|20000' "$(tool console -g static | sed -n '1,4p;$p' | paste -sd '|')"
expect 'system log' 1 "$(tool console -m -g static | grep -c 'test: to the log')"

# A request to end reaches the command; it may take its time, and its word counts.
start run -- sh -c 'trap "echo ended >ended; exit 3" TERM; echo >started; while :; do sleep 0.05; done'
wait_for test -e started
kill $!
wait $!
expect 'the caller heeds the signal' 143 $?
expect 'the command too' 'ended' "$(cat ended)"

# Root needs no namespace of users, others do.
as_user() { setpriv --reuid 65534 --regid 65534 --clear-groups env HOME=/nonexistent CALTOFAL_SANDBOX_DIR="$PWD/user" "$@"; }
if [ "$(id -u)" = 0 ] && chmod 755 .. . && mkdir user && chown 65534 user && as_user test -x "$0"; then
    expect 'an ordinary user' '65534 eth0_1>02:00:5E:10:00:01' "$(
        as_tool as_user run -- sh -c 'id -u; echo >>/opt/lantiq/etc/nextmac.conf; grep eth0_1 /opt/lantiq/etc/nextmac.conf
            killall -SIGUSR1 nimbord' | paste -sd ' ')"
fi

# Without bubblewrap, BusyBox or namespaces there is no box, and one line says so.
mkdir -p tools
ln -sf "$(command -v busybox)" tools/busybox
expect 'no bubblewrap' '77 caltofal-sandbox: no device box: bwrap is not installed: install the package bubblewrap, on Debian with apt install bubblewrap' \
    "$(why=$(PATH=$PWD/tools run -- true 2>&1); echo "$? $why")"
printf '#!/bin/sh\necho "bwrap: No permissions to create new namespace" >&2\nexit 1\n' >tools/bwrap
chmod +x tools/bwrap
expect 'no namespaces' '77 1 caltofal-sandbox: no device box: bwrap: No permissions to create new namespace;' \
    "$(why=$(PATH=$PWD/tools run --check 2>&1); echo "$? $(echo "$why" | wc -l) ${why%%;*};")"
