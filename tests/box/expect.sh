# SPDX-License-Identifier: MIT
# What the cases share. To be sourced, with the path of caltofal-sandbox in $sandbox.
# shellcheck shell=sh
failures=0
sandbox=${sandbox:?}

# expect WHAT WANTED GOT
expect() {
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n  wanted: %s\n  got:    %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}

# Waits up to ten seconds for a command to succeed.
wait_for() {
    tries=0
    until "$@"; do
        tries=$((tries + 1))
        if [ $tries -gt 200 ]; then
            expect "$* within ten seconds" 'to succeed' 'not'
            return 1
        fi
        sleep 0.05
    done
}

# caltofal-sandbox
tool() { "$sandbox" "$@"; }

# The same through another program: as_tool PROGRAM ARGUMENT...
as_tool() {
    through=$1
    shift
    "$through" "$sandbox" "$@"
}

# The same in the background, its process in $!
start() { "$sandbox" "$@" & }

# in_box GATEWAY COMMAND...: the output of a shell command in the box.
in_box() {
    gateway=$1
    shift
    tool run -g "$gateway" -- sh -c "$@"
}

report() {
    [ $failures -eq 0 ]
    exit
}
