#!/usr/bin/env bash
# What stays behind when each dialog is shown 10,000 times and the status is read a million times; under Wine.
# On request only: it takes an hour or two. BRX_SHOWINGS and BRX_TICKS are other numbers, from 1,000 up.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

showings=${BRX_SHOWINGS:-10000} ticks=${BRX_TICKS:-1000000}
export BRX_SHOWINGS=$showings BRX_TICKS=$ticks
need "the program builds" build windows-x64 brx_endurance
trap wine_end EXIT
wine_begin 64
# For a machine that takes a quarter of a second for a showing and 5 ms for a tick.
run_program "what stays" wine_run $((1800 + showings * 9 / 4 + ticks / 100)) \
    "$brx_build/windows-x64/checks/endurance/brx_endurance.exe"
grep ' user [+-]' "$part_logs/what-stays.log" || true
part_end
