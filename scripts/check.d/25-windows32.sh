#!/usr/bin/env bash
# The 32-bit DLL and the check programs, in a 32-bit root; where there can be none, the DLL is only inspected.
# Builds first.
# Beside the others, on a core of its own.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

need "the preset windows-x86 builds" build windows-x86
rule "the 32-bit DLL is made as it should be" \
    "$brx_top/scripts/inspect-dll.sh" 32 "$brx_build/windows-x86/$brx_dll"

not_run() { # not_run WHY : every program counts as skipped
    local why=$1 entry owner seconds program
    for entry in "$brx_build"/windows-x86/check-programs/*; do
        read -r owner seconds program <"$entry"
        [[ $owner != windows && $owner != apart ]] || skip "windows-x86: $(basename "$program")" "$why"
    done
    part_end
}
if ! "$brx_top/scripts/wine32.sh" available; then
    is_root || not_run "32-bit programs need the 32-bit root, and only root can make and enter it"
    "$brx_top/scripts/wine32.sh" make || not_run "no 32-bit root could be made on this machine"
    "$brx_top/scripts/wine32.sh" available || not_run "the 32-bit root cannot be entered on this machine"
fi
is_prepared "$@"
trap wine_end EXIT
wine_begin 32
run_programs windows-x86 windows wine_run
wine_end
# As in the part `apart`.
wine_begin 32 wine32-apart
run_programs windows-x86 apart wine_run
part_end
