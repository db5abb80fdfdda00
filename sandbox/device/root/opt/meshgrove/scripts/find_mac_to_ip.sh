#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints the IPv4 address of a satellite, or of another host, with the MAC address in $1. Nothing, and exit code 1,
# when there is none.
. /opt/lantiq/lib/device.sh

play /opt/meshgrove/scripts/find_mac_to_ip.sh "$(echo "$1" | tr 'A-F' 'a-f')"
{
    device_model table Device.WiFi.X_ZINTU_RoamingMesh.Satellite. PhysAddress IPAddress
    device_model table Device.Hosts.Host. PhysAddress IPAddress
} | awk -F '\t' -v mac="$1" 'tolower($2) == tolower(mac) && $3 { print $3; found = 1; exit } END { exit !found }'
