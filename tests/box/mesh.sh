# SPDX-License-Identifier: MIT
# The mesh's tools as the library calls them.
# shellcheck shell=sh disable=SC2016

slaves=/runtime/singlesignoninfo/livingslave/ishasrptslave

expect 'connected satellites' '2 0' "$(for gateway in mesh home; do in_box $gateway "gddbc -i -g $slaves"; done | paste -sd ' ')"
in_box mesh "gddbc -i -s $slaves 1; gddbc -i -s /runtime/odd \"two  words * 'quoted'\"; gddbc -i -s /runtime/empty \"\""
expect 'values stay from box to box, each gateway has its own' "1|two  words * 'quoted'|||0" "$(
    {
        in_box mesh "gddbc -i -g $slaves; gddbc -i -g /runtime/odd; gddbc -i -g /runtime/empty; gddbc -i -g /runtime/never"
        in_box home "gddbc -i -g $slaves"
    } | paste -sd '|')"
expect 'a forgotten value is computed again' 2 "$(in_box mesh "gddbc -i -d $slaves; gddbc -i -g $slaves")"

# The library's line: clear the command, signal the daemon.
sync='gddbc -i -s /runtime/nimbord/sysnotifycmd "" ; killall -SIGUSR1 nimbord'
pushes='pushes() { gddbc -i -g /runtime/nimbord/pushes; }
    await() { for i in $(seq 100); do [ "$(pushes)" = $1 ] && break; usleep 50000; done; pushes; }'
expect 'the daemon pushes the settings' '1 2' "$(in_box mesh "$pushes; $sync; await 1; $sync; await 2" | paste -sd ' ')"
expect 'and says so' 2 "$(tool console -m -g mesh | grep -c 'nimbord: notified: settings pushed to 2 satellites')"
expect 'a named command is taken, nothing is pushed' '|2' "$(in_box mesh "$pushes"'
    gddbc -i -s /runtime/nimbord/sysnotifycmd refresh; killall -SIGUSR1 nimbord
    for i in $(seq 100); do [ -z "$(gddbc -i -g /runtime/nimbord/sysnotifycmd)" ] && break; usleep 50000; done
    gddbc -i -g /runtime/nimbord/sysnotifycmd; pushes' | paste -sd '|')"
expect 'there is one daemon' 1 "$(in_box mesh 'pidof nimbord | wc -w')"

find=/opt/meshgrove/scripts/find_mac_to_ip.sh
expect 'satellite, host, any case, stranger' '192.168.1.3|192.168.1.2|1' "$(in_box mesh "
    $find 02:00:5E:21:00:01; $find 02:00:5e:20:00:01; $find 00:00:00:00:00:00; echo \$?" | paste -sd '|')"
