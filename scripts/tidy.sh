#!/usr/bin/env bash
# clang-tidy over the product's and the sample's sources of a preset that is compiled already. A source that passed
# is asked about again only when it, a header of ours that it includes, or the questions changed.
#
#   scripts/tidy.sh PRESET
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$brx_top"

preset=$1
passed_before=$brx_cache/tidy
mkdir -p "$passed_before"
find "$passed_before" -type f -mtime +30 -delete
questions=$({ clang-tidy --version && cat .clang-tidy && clang-tidy --dump-config; } | sha256sum)

# "HASH SOURCE" for each source: ninja knows what each object was made from.
sources_with_hashes() {
    ninja -C "build/$preset" -t deps | awk '
        /^[^ ].*: #deps/ { object = $1; next }
        /^    / { print object, $1 }' |
        while read -r object file; do
            file=$(realpath -m --relative-to=. "build/$preset/$file")
            case $object in *brx_headers*) continue ;; esac
            case $file in ../* | build/* | /*) ;; *) say "$object $file" ;; esac
        done | sort -u >"build/$preset/tidy.deps"
    xargs -d '\n' sha256sum < <(awk '{ print $2 }' "build/$preset/tidy.deps" | sort -u) |
        awk -v questions="$questions" '
            NR == FNR { sum[$2] = $1; next }
            { text[$1] = text[$1] " " $2 " " sum[$2]; if ($2 ~ /\.cpp$/) source[$1] = $2 }
            END { for (object in text) print source[object], questions text[object] }' - "build/$preset/tidy.deps" |
        while read -r source text; do
            case $source in src/* | sample/*) say "$(sha256sum <<<"$text" | cut -c 1-64) $source" ;; esac
        done
}

ask() { # ask HASH SOURCE
    [ -e "$passed_before/$1" ] && return 0
    local output
    if output=$(clang-tidy --quiet -p "build/$preset" "$2" 2>/dev/null); then
        touch "$passed_before/$1"
    else
        say "${output//"$brx_top/"/}"
        return 1
    fi
}

export -f ask say
export preset passed_before brx_top
# shellcheck disable=SC2016
sources_with_hashes | xargs -r -P "${BRX_JOBS:-$(nproc)}" -L 1 bash -c 'ask "$@"' ask
