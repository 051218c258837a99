#!/usr/bin/env bash
# What the other compilers and clang-tidy say: clang on Linux, gcc for Windows.
# On request only: takes longer than everything else together.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
cd "$brx_top"

rule "clang takes every header by itself" build linux-clang brx_headers
rule "clang takes every source" objects linux-clang
rule "gcc takes every source of Windows" objects windows-x64-gcc
rule "clang-tidy has no complaint" scripts/tidy.sh linux-clang
part_end
