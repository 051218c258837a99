#!/usr/bin/env bash
# The guided tour through the sample host: every step comes out, every picture is taken.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"

rule "the guided tour" "$brx_top/run" --tour "$brx_build/tour"
pictures=("$brx_build"/tour/[0-9][0-9]-*.png)
rule "a picture of every step" test "${#pictures[@]}" -eq 17
part_end
