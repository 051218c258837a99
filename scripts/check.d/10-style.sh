#!/usr/bin/env bash
# Formatting, headers that stand alone, what a file may hold.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
cd "$brx_top"

# The files of the project, also those that are not committed yet.
files() { git ls-files --cached --others --exclude-standard -- "$@" | while read -r f; do [ ! -f "$f" ] || say "$f"; done; }

formatted() {
    local file found=''
    while read -r file; do
        clang-format --dry-run -Werror "$file" 2>/dev/null || found+="$file:1: error: not formatted"$'\n'
    done < <(files '*.cpp' '*.h')
    [ -z "$found" ] || { printf '%s' "$found" && return 1; }
}

short_files() {
    local file lines long=''
    while read -r file; do
        lines=$(wc -l <"$file")
        [ "$lines" -le 350 ] || long+="$file:1: error: $lines lines; 300 is what one idea needs"$'\n'
    done < <(files '*.cpp' '*.h' '*.sh' '*.cmake')
    [ -z "$long" ] || { printf '%s' "$long" && return 1; }
}

sound_scripts() { files '*.sh' run check package .ci/run | xargs -r -d '\n' shellcheck --external-sources; }

# Pictures of the documentation are the only files that are not text.
only_text() {
    local file found=''
    while read -r file; do
        [[ $file == docs/*.png ]] && [ "$(stat -c %s "$file")" -le 300000 ] && continue
        [ ! -s "$file" ] || grep -qI . "$file" || found+="$file:1: error: not text"$'\n'
    done < <(files)
    [ -z "$found" ] || { printf '%s' "$found" && return 1; }
}

# No address of another machine; the names of Microsoft's manifest schemas only look like ones.
no_addresses() {
    local found
    found=$(files | xargs -r -d '\n' grep -nIoE -- "(https?|ftp)://[A-Za-z0-9.-]+" |
        grep -vE '://schemas\.microsoft\.com$' || true)
    [ -z "$found" ] || { say "$found" && return 1; }
}

# What the sources say to a person stands in the guide, whatever its lines and marks.
explained_texts() {
    local guide place text missing=''
    guide=$(tr -d '*`' <docs/dialogs.md | tr -s ' \n' ' ')
    while IFS=$'\t' read -r place text; do
        [[ $guide == *"$text"* ]] || missing+="$place: error: docs/dialogs.md does not explain: $text"$'\n'
    done < <(files 'src/*.cpp' 'src/*.h' ':!src/common/values/*' | xargs -r -d '\n' awk -f scripts/shown-texts.awk)
    [ -z "$missing" ] || { printf '%s' "$missing" && return 1; }
}

# arrows: folder and included folder, a line each, that are not in the table of docs/architecture.md.
arrows() {
    local room='s#^src/((forms/)?(win32|headless)|[a-z]+)(/[^:]*)?:\#include "((forms/)?(win32|headless)|[a-z]+)/.*#\1 \5#p'
    comm -13 \
        <(sed -nE 's/^\| ((`[a-z/0-9]+` ?)+)\|[^|]*\| (.*) \|$/\1|\3/p' docs/architecture.md | tr -d '`,' |
            awk -F'|' '{ n = split($1, from, " "); sub("each other", $1, $2); m = split($2, to, " ")
                         for (i = 1; i <= n; ++i) for (k = 1; k <= m; ++k) print from[i], to[k] }' | sort -u) \
        <(files 'src/*.cpp' 'src/*.h' | xargs -r -d '\n' grep -HE '^#include "[a-z0-9/]+/' | sed -nE "$room" |
            awk '$1 != $2' | sort -u) | sed 's/^/error: not drawn: /'
}
as_drawn() {
    local found
    found=$(arrows)
    [ -z "$found" ] || { say "$found" && return 1; }
}

# The one program in the guide is the one that is built and run.
shown_example() { diff <(sed -n '/^```cpp$/,/^```$/{//!p}' docs/testing.md) sample/describe/main.cpp; }

# The version stands in CMakeLists.txt, and the changelog begins with it; everything else is told it. Those of the system
# controls look alike.
one_version() {
    local version found
    version=$(project_version)
    found=$(files src sample checks cmake scripts packaging run check package | xargs -r -d '\n' grep -nHF -- "$version" |
        grep -vE 'Common-Controls"?"? version' || true)
    [ -z "$found" ] || { say "error: the version stands in CMakeLists.txt alone"$'\n'"$found" && return 1; }
    grep -m 1 '^## ' CHANGELOG.md | grep -qE "^## ${version//./\\.}(,|$)" ||
        { say "CHANGELOG.md:1: error: it does not begin with version $version" && return 1; }
}

rule "every file is formatted" formatted
rule "one place says the version" one_version
rule "no file is longer than one idea" short_files
rule "no file names another machine" no_addresses
rule "the repository holds text" only_text
rule "the guide explains every text that a person is shown" explained_texts
rule "the guide shows the example as it is checked" shown_example
rule "the folders include what the architecture draws" as_drawn
rule "the scripts are sound" sound_scripts
rule "gcc takes every header by itself" build linux brx_headers
part_end
