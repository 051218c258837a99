#!/usr/bin/env bash
# The dialogs with an OPC server in another process: slow, suspended, dying at each call; under Wine.
# Builds first.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

need "the preset windows-x64 builds" build windows-x64
is_prepared "$@"
trap wine_end EXIT
# A prefix of its own: here a wrapper is installed, and elsewhere there is none.
wine_begin 64 wine64-apart
run_programs windows-x64 apart wine_run
skip "a 32-bit host with a 64-bit server" \
    "Wine has the two in roots of their own here; windows32 checks a 32-bit host with a 32-bit server"
part_end
