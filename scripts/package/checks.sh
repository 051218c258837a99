# The check kit as a folder; sourced by ./package.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/kit.sh"

# with_crlf FILE: as Windows' own shells want it.
with_crlf() { sed 's/$/\r/' "$1"; }

# make_check_kit FOLDER LICENSES: the folder is named by where it lies; LICENSES has the terms of what every program is
# linked with.
make_check_kit() {
    local folder=$1 licenses=$2 arch file
    rm -rf "$folder"
    mkdir -p "$folder"
    for arch in x64 x86; do
        cmake --install "$brx_build/windows-$arch" --component checks --strip --prefix "$folder/$arch" >/dev/null || return
    done
    for file in "$brx_top"/packaging/checks/*; do with_crlf "$file" >"$folder/$(basename "$file")"; done
    page "$brx_top/packaging/CHECKS.md" "$folder/README.html"
    cp "$brx_top/LICENSE" "$brx_top/NOTICE" "$folder/"
    cp -r "$licenses" "$folder/licenses"
    cp /usr/share/doc/googletest/copyright "$folder/licenses/googletest.txt"
}
