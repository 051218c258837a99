#!/usr/bin/env bash
# Random deeds at every public class over hosts that change and fail, headless and on real windows.
# Builds first.
# BRX_DEEDS of them (200000, on windows a fortieth), by BRX_SEED (1); docs/building.md says how to read what it tells.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"

deeds=${BRX_DEEDS:-200000} seed=${BRX_SEED:-1} jobs=${BRX_JOBS:-$(nproc)}
headless=$brx_build/linux/checks/random/brx_random
windows=$brx_build/windows-x64/checks/random/brx_random.exe
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1

# Who leads to more dialogs gets more of sixteen parts.
declare -A parts_of=([ConfigurationSetup]=5 [TestConfiguration]=3 [LeafSelect]=3 [ServerAdd]=2 [ServerSelect]=2
    [ServerInformation]=1)
classes=(ConfigurationSetup TestConfiguration LeafSelect ServerAdd ServerSelect ServerInformation)

# shortest STORY RETELL: the story in sentences, cut down where it ends as badly once more.
shortest() {
    if "$headless" cut "$1" "$2" >"$1.ending" 2>&1; then
        cat "$1.ending"
        "$headless" tell "$1.cut"
    else
        say "A story of $(wc -l <"$1") deeds, which ends well the second time. Its last ones:"
        "$headless" tell "$1" | tail -n 20
    fi
}

# judge CLASS WHERE STATUS RETELL: counts the class; what it ended with otherwise, and how it came to that.
judge() {
    local name="$2: $1 with seed $seed" base=$part_logs/$2-$1
    if [ "$3" -eq 0 ] && grep -q ' of them possible' "$base.log"; then
        passed=$((passed + 1))
    else
        fail "$name" "$(grep -A 2 -m 1 '^FOUND: ' "$base.log" || last_words "$base.log")"$'\n'"$(shortest "$base.story" "$4")"$'\n'"(${base#"$brx_top"/}.log, .story)"
    fi
}

play() { # play CLASS WHERE DEEDS RUNNER..: its status is in a file
    local class=$1 base=$part_logs/$2-$1 share=$((${3} * parts_of[$1] / 16)) status=0
    shift 3
    "$@" play "$class" "$seed" "$share" "$base.story" >"$base.log" 2>&1 </dev/null || status=$?
    say "$status" >"$base.status"
}

need "the headless program builds" build linux brx_random
need "the one for windows builds" build windows-x64 brx_random
is_prepared "$@"

running=0
for class in "${classes[@]}"; do
    play "$class" headless "$deeds" timeout --kill-after=10 600 "$headless" &
    running=$((running + 1))
    if [ "$running" -ge "$jobs" ]; then wait -n && running=$((running - 1)); fi
done
wait
for class in "${classes[@]}"; do
    judge "$class" headless "$(cat "$part_logs/headless-$class.status")" "timeout 60 '$headless' retell"
done

trap wine_end EXIT
wine_begin 64
for class in "${classes[@]}"; do
    play "$class" windows $((deeds / 40)) wine_run 600 "$windows"
    judge "$class" windows "$(cat "$part_logs/windows-$class.status")" \
        "env ${wine_environment[*]} timeout 60 wine '$windows' retell"
done
part_end
