#!/usr/bin/env bash
# Single edits to the portable sources, by seed: how many of them do the native checks notice?
# On request only: BRX_MUTANTS edits (100), drawn by BRX_SEED (1); docs/building.md says how to read what it tells.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"

how_many=${BRX_MUTANTS:-100} seed=${BRX_SEED:-1} jobs=${BRX_JOBS:-$(nproc)}
goal=95 # percent
home=$brx_build/mutants
top=$home/top     # the sources as they were when it began
tree=$home/tree   # the same with all edits compiled in
state=$home/state # what is known of the edits
objects=$home/build
results=$state/results-$seed
edits=$brx_build/linux/checks/mutants/brx_mutants
program=$objects/checks/brx_checks
export program state results edits top
# For the check that reads them: in the compiled ones there are all edits.
export BRX_SOURCES=$top/src

# Files that stay as they are keep their times, so that little is compiled again.
copy_sources() {
    local wanted
    wanted=$(cd "$brx_top" && git ls-files --cached --others --exclude-standard -- \
        CMakeLists.txt cmake checks sample src | while read -r f; do [ ! -f "$f" ] || say "$f"; done)
    mkdir -p "$state" "$tree"
    rm -rf "$top" && mkdir -p "$top"
    (cd "$brx_top" && tr '\n' '\0' <<<"$wanted" | xargs -0 cp -p --parents -t "$top")
    (cd "$tree" && find . -type f -printf '%P\n') | sort | comm -23 - <(sort <<<"$wanted") |
        while read -r gone; do rm "$tree/$gone"; done
    "$edits" files "$top" "$state" | sort >"$state/files"
    sort <<<"$wanted" | comm -23 - "$state/files" | tr '\n' '\0' |
        (cd "$top" && xargs -0 cp -p --parents --update -t "$tree")
}

# Many sources at a time, which takes a tenth of the time; one by one where their own names clash.
together=ON

compile() { # compile TARGET..
    cmake -S "$tree" -B "$objects" -G Ninja -DBRX_MUTANTS=ON -DCMAKE_CXX_COMPILER=g++ -DCMAKE_C_COMPILER=gcc \
        -DBRX_TOGETHER=$together \
        -DCMAKE_CXX_FLAGS="-O0 -g0 -w -D_GLIBCXX_ASSERTIONS -include $tree/checks/mutants/mutant.h" &&
        cmake --build "$objects" -j "$jobs" --target "$@" -- -k 0
}

# All edits at once; those that the compiler does not take are taken back until it is content, with the product
# before the checks that include its headers.
compile_edits() {
    local target new
    for target in brx_component brx_checks; do
        while :; do
            "$edits" guard "$top" "$state" "$tree"
            if compile "$target" >"$state/compiler.log" 2>&1; then break; fi
            new=$("$edits" learn "$top" "$state" "$state/compiler.log")
            [ "$new" -eq 0 ] || continue
            [ "$together" = ON ] || { tail -n 40 "$state/compiler.log" && return 1; }
            mv "$state/compiler.log" "$state/clash.log"
            rm -f "$state/unguarded" "$state/impossible" # what was learnt may follow from the clash
            together=OFF
        done
    done
}

# Of the checks themselves it tells only in their own order whether their places are known.
all_checks='*-PlacesOfFailure.*:TablesOfCalls.*'
export all_checks

baseline() { BRX_MUTANT_REACH=$1 "$program" --gtest_brief=1 --gtest_filter="$all_checks"; }

# passes NUMBER SECONDS FILTER: whether the checks do with that edit. One that hangs or ends the program is noticed.
passes() {
    printf -- '--gtest_filter=%s\n' "$3" >"$results/$1.flags"
    BRX_MUTANT=$1 timeout --signal=KILL "$2" "$program" --gtest_flagfile="$results/$1.flags" --gtest_fail_fast \
        --gtest_brief=1 >"$results/$1.log" 2>&1
}

# read_well NUMBER: whether the check that reads the sources does with them as they are after that edit.
read_well() {
    local tree=$results/$1.tree status=0
    mkdir -p "$tree" && cp -r "$top/src" "$tree"
    "$edits" plain "$top" "$state" "$tree" "$1"
    BRX_SOURCES=$tree/src passes "$1" 60 'ProcedureNames.*' || status=$?
    rm -rf "$tree"
    return "$status"
}

# try_edit NUMBER: what the checks that reach it say, and where they notice nothing what all of them say.
try_edit() {
    local seconds filter outcome=unreached
    while read -r seconds filter; do
        outcome=unnoticed
        passes "$1" "$seconds" "$filter" || outcome=noticed
        [ "$outcome" = unnoticed ] || break
    done < <("$edits" tests "$state/reach" "$1")
    if [ "$outcome" != noticed ]; then read_well "$1" || outcome=noticed; fi
    if [ "$outcome" = unnoticed ]; then passes "$1" 300 "$all_checks" || outcome=noticed; fi
    say "$1 $outcome" >"$results/$1"
}
export -f try_edit passes read_well say

# make_edit NUMBER: the same for one that cannot be compiled in.
make_edit() {
    local outcome=unnoticed
    "$edits" guard "$top" "$state" "$tree" "$1"
    if ! compile brx_checks >"$results/$1.log" 2>&1; then
        outcome=impossible
    elif ! passes -1 300 "$all_checks"; then
        outcome=noticed
    fi
    say "$1 $outcome" >"$results/$1"
}

in_vain() {
    local idle
    idle=$("$edits" idle "$top" "$state")
    [ -z "$idle" ] || { printf 'error: leaves nothing out: %s\n' "$idle" && return 1; }
}

# With the place and what was changed, by outcome.
outcomes() {
    join -t $'\t' <(cat "$results"/*[0-9] | tr ' ' '\t' | sort) <("$edits" list "$top" "$state" | sort)
}

share_is_reached() {
    [ $((noticed * 100)) -ge $((counted * goal)) ] || { say "error: $noticed of $counted are less than $goal %" && return 1; }
}

need "the tool builds" build linux brx_mutants
copy_sources
rule "every exception leaves something out" in_vain
need "the sources compile with all edits in them" compile_edits
need "all checks pass when no edit is chosen" baseline "$state/reach"
need "and once more" baseline "$state/reach-again"

rm -rf "$results" && mkdir -p "$results"
"$edits" draw "$top" "$state" "$seed" "$how_many" >"$state/drawn"
sed '/ made$/d' "$state/drawn" | xargs -P "$jobs" -I '{}' bash -c 'try_edit {}' 2>"$results/shell.log"
sed -n 's/ made$//p' "$state/drawn" | while read -r number; do make_edit "$number" </dev/null; done
"$edits" guard "$top" "$state" "$tree"

outcomes >"$state/outcomes-$seed"
sed -nE 's/^[0-9]+\t(unnoticed|unreached)\t([^\t]*)\t([^\t]*)\t([^\t]*)\t([^\t]*)\t.*/\1: \2: \3: \4  ->  \5/p' "$state/outcomes-$seed" | sort -t: -k2,2 -k3,3n
counted=$(grep -cv $'\timpossible\t' "$state/outcomes-$seed")
noticed=$(grep -c $'\tnoticed\t' "$state/outcomes-$seed" || true)
printf 'noticed %d of %d edits with seed %s, %d %%; %d more did not compile\n' "$noticed" "$counted" "$seed" \
    $((noticed * 100 / counted)) $(($(wc -l <"$state/outcomes-$seed") - counted))
rule "at least $goal % of the edits are noticed" share_is_reached
part_end
