# What the parts of ./check are written with; sourced by scripts/check.d/*.sh, never run.
#
# A part counts its checks with rule, need, skip and run_programs, tells what failed, and ends with part_end.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

part=$(basename "$0" .sh)
part=${part#*-}
part_logs=$brx_logs/$part
mkdir -p "$part_logs"
passed=0 failed=0 skipped=0

part_end() {
    printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
    [ "$failed" -eq 0 ]
    exit
}

# is_prepared "$@": ends the part here when only what it needs is to be made.
is_prepared() { [ "${1:-}" != prepare ] || part_end; }

# fail NAME TEXT..: one failed check.
fail() {
    failed=$((failed + 1))
    printf 'FAILED: %s\n' "$1"
    shift
    [ $# -eq 0 ] || printf '%s\n' "$*" | sed 's/^/    /'
}

# skip NAME REASON: one check that could not be run here. It is always told.
skip() {
    skipped=$((skipped + 1))
    printf 'SKIPPED: %s: %s\n' "$1" "$2"
}

# rule NAME COMMAND..: a check that passes when the command succeeds; its output is what is told of a failure.
rule() { try_rule "$@" || true; }

# need NAME COMMAND..: the same for what the rest of the part needs.
need() { try_rule "$@" || part_end; }

try_rule() {
    local name=$1 log output
    shift
    log=$part_logs/$(tr -cs 'A-Za-z0-9\n' - <<<"$name").log
    if "$@" >"$log" 2>&1 </dev/null; then
        passed=$((passed + 1))
    else
        output=$(grep -E '(^|[ :])(fatal )?(error|warning)[: ]|^[^ ]+:[0-9]+:' "$log" | sort -u | cut -c 1-300 | sed -n '1,40p')
        [ -n "$output" ] || output=$(tail -n 40 "$log")
        fail "$name" "$output"$'\n'"(all of it: ${log#"$brx_top"/})"
        return 1
    fi
}

# objects PRESET: compiles everything of a preset and links nothing.
objects() {
    local preset=$1
    (
        flock 9
        cd "$brx_top" || exit
        cmake --preset "$preset" 9>&- || exit
        ninja -C "build/$preset" -t targets all | sed -n 's/: CXX_COMPILER__.*//p' |
            xargs -r ninja -C "build/$preset" -j "${BRX_JOBS:-$(nproc)}" -k 0 9>&-
    ) 9>"$brx_build/$preset.lock"
}

# run_programs PRESET PART RUNNER..: runs the check programs that the preset has for a part. RUNNER gets the time
# limit in seconds, the program and its arguments.
run_programs() {
    local preset=$1 wanted=$2 entry owner seconds program found=''
    shift 2
    for entry in "$brx_build/$preset"/check-programs/*; do
        [ -e "$entry" ] || continue
        read -r owner seconds program <"$entry"
        [ "$owner" = "$wanted" ] || continue
        found=yes
        run_program "$preset: $(basename "$program")" "$@" "$seconds" "$program"
    done
    [ -n "$found" ] || fail "$preset" "there is no check program for $wanted"
}

# run_program NAME COMMAND..: counts the checks of a program by its closing line. Without that line it did not come to
# its end, whatever its exit status says.
run_program() {
    local name=$1 log status=0 counts
    shift
    log=$part_logs/$(tr -cs 'A-Za-z0-9\n' - <<<"$name").log
    GTEST_COLOR=no "$@" >"$log" 2>&1 </dev/null || status=$?
    sed -i 's/\r$//' "$log"
    counts=$(closing_counts "$log")
    if [ -z "$counts" ]; then
        local ending="ended with status $status"
        [ "$status" -ne 124 ] || ending="was ended at its time limit"
        fail "$name" "$ending before its closing line"$'\n'"$(last_words "$log")"$'\n'"(${log#"$brx_top"/})"
        return 0
    fi
    local good bad left
    read -r good bad left <<<"$counts"
    passed=$((passed + good)) failed=$((failed + bad)) skipped=$((skipped + left))
    if [ "$bad" -gt 0 ]; then
        printf 'FAILED: %s: %d of its checks (%s)\n' "$name" "$bad" "${log#"$brx_top"/}"
        failure_texts "$log" | sed -n '1,100p' | sed 's/^/    /'
    elif [ "$status" -ne 0 ]; then
        fail "$name" "all its checks passed, but it ended with status $status"$'\n'"$(tail -n 30 "$log")"
    elif [ $((good + left)) -eq 0 ]; then
        fail "$name" "no check ran"
    fi
    if [ "$left" -gt 0 ]; then
        printf 'SKIPPED: %s: %d of its checks\n' "$name" "$left"
        sed -nE 's/^\[  SKIPPED \] ([^ ]*) \(.*/    \1/p; s/^SKIPPED: /    /p' "$log" | sed -n '1,20p'
    fi
}

# "N N N" from a closing line that is the last line with anything in it or is followed by other things on the error
# output only (sanitizers report after it); nothing without one.
closing_counts() {
    sed -nE 's/^([0-9]+) passed, ([0-9]+) failed, ([0-9]+) skipped$/\1 \2 \3/p' "$1" | tail -n 1
}

# What a program that did not come to its end told: the check it was in, and of a crash the call stack.
last_words() {
    grep '^\[ RUN ' "$1" | tail -n 1 || true
    if grep -q '^Backtrace:' "$1"; then
        grep -m 1 '^Unhandled exception' "$1"
        sed -n '/^Backtrace:/,/^Modules:/{/^Modules:/d;p}' "$1" | sed -n '1,20p'
    elif grep -qE 'ERROR: [A-Za-z]+Sanitizer|: runtime error: ' "$1"; then
        sed -nE '/ERROR: [A-Za-z]+Sanitizer|: runtime error: /,$p' "$1" | sed -n '1,25p'
    else
        tail -n 30 "$1"
    fi
}

# What GoogleTest printed for each failed check, and the lines "FAILED: ..." of programs without it.
failure_texts() {
    awk '/^\[ RUN      \]/ { text = ""; within = 1 }
         !within && /^FAILED: / { print; next }
         { text = text $0 "\n" }
         /^\[       OK \]|^\[  SKIPPED \]/ { text = ""; within = 0 }
         /^\[  FAILED  \] .*\([0-9]+ ms\)$/ { printf "%s", text; text = ""; within = 0 }' "$1"
}
