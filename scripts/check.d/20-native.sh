#!/usr/bin/env bash
# The check programs on Linux, under the address, leak and undefined behaviour sanitizers.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"

export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1
need "the preset linux builds" build linux
# ctest_knows PRESET: every check program of it.
ctest_knows() {
    local program tests
    tests=$(ctest --preset "$1" -N)
    for program in "$brx_build/$1"/check-programs/*; do
        grep -q ": $(basename "$program")\$" <<<"$tests" || { say "error: it does not know $program" && return 1; }
    done
}
rule "CTest knows every check program" ctest_knows linux
run_programs linux native timeout --kill-after=10

# In which order a host is called must not be a compiler's choice.
need "clang builds what compares the calls" build linux-clang-checks brx_call_checks
run_program "linux-clang-checks: brx_call_checks" \
    timeout --kill-after=10 600 "$brx_build/linux-clang-checks/checks/brx_call_checks"
part_end
