#!/usr/bin/env bash
# The guided tour through the sample host: every step comes out, every picture is taken.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"

pictures=$brx_build/tour
told=$part_logs/told.log

tour() { "$brx_top/run" --tour "$pictures" | tee "$told"; }

# The tour tells how many steps it had.
a_picture_of_every_step() {
    local steps taken
    steps=$(sed -nE 's/^([0-9]+) steps, all as they should be$/\1/p' "$told")
    taken=$(find "$pictures" -name '[0-9][0-9]-*.png' -size +1k | wc -l)
    [ "$taken" -eq "${steps:-0}" ] || { say "error: $taken pictures of ${steps:-unknown} steps" && return 1; }
}

need "the guided tour" tour
rule "a picture of every step" a_picture_of_every_step
part_end
