# SPDX-License-Identifier: MIT
# Notification identifiers of the service daemon. To be sourced.
# shellcheck shell=sh disable=SC2034
NOTIFY_WIFI_WPS_ACTION=137
NOTIFY_WIFI_SCAN_ACTION=138
