#!/usr/bin/env bash
# The conversions against the platform's automation library and script engine, in three locales.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

need "the comparison builds" build windows-x64 brx_conversions
program=$brx_build/windows-x64/checks/conversions/brx_conversions.exe
trap wine_end EXIT
wine_begin 64
run_program "the automation library" wine_run 600 "$program"
for locale in en_US de_DE fr_FR; do
    wine_locale "$locale"
    run_program "the script engine in $locale" wine_run 600 "$program" --script "${locale/_/-}"
done
part_end
