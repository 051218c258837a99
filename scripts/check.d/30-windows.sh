#!/usr/bin/env bash
# The 64-bit DLL and the check programs on real windows, under Wine.
# Builds first.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

need "the preset windows-x64 builds" build windows-x64
rule "the headers of Windows stand alone" build windows-x64 brx_headers
is_prepared "$@"
rule "the 64-bit DLL is made as it should be" \
    "$brx_top/scripts/inspect-dll.sh" 64 "$brx_build/windows-x64/$brx_dll"
trap wine_end EXIT
wine_begin 64
run_programs windows-x64 windows wine_run
part_end
