#!/usr/bin/env bash
# What large address spaces and configurations take, against the least that they can take.
# On request only: it tells figures, which other programs disturb; docs/performance.md says how to read them.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

need "the benchmark builds" build windows-x64 brx_bench
trap wine_end EXIT
wine_begin 64
run_program "the figures" wine_run 1800 "$brx_build/windows-x64/checks/bench/brx_bench.exe"
sed -E '/^[0-9]+ passed, [0-9]+ failed, [0-9]+ skipped$/d' "$part_logs/the-figures.log"
part_end
