# The list of parts (SPDX 2.3), from what the linker tells in its PDB; sourced by ./package.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/kit.sh"

# sbom_binaries: "file in the kit TAB its PDB" for each file that has linked code.
sbom_binaries() {
    local arch each
    for arch in x64 x86; do
        printf '%s\t%s\n' "$arch/brxOpcDlgs6.dll" "$brx_build/windows-$arch/${brx_dll%.dll}.pdb"
        printf '%s\t%s\n' "samples/$arch/brxOpcDlgs6.dll" "$brx_build/windows-$arch/${brx_dll%.dll}.pdb"
        printf '%s\t%s\n' "symbols/$arch/brxResolve.exe" "$brx_build/windows-$arch/sample/resolve/brxResolve.pdb"
        for each in objects/brxSample.dll window/brxSampleHost.exe server/brxSampleServer.exe describe/brxDescribe.exe; do
            printf '%s\t%s\n' "samples/$arch/$(basename "$each")" "$brx_build/windows-$arch/sample/${each%.*}.pdb"
        done
    done
}

# linked_files PDB: the objects and archives that were linked.
linked_files() { llvm-pdbutil dump --modules "$1" | sed -nE 's/^ *Obj: `(.+)`: *$/\1/p' | LC_ALL=C sort -u; }

# sbom_part FILE: "name TAB version TAB licence" of what a linked file belongs to; nothing for the project's own.
sbom_part() {
    local file=$1 package licence
    if [[ $file == *libbrx_sqlite.a ]]; then
        printf 'SQLite\t%s\tblessing\n' "$(sed -nE 's/^#define SQLITE_VERSION +"(.*)"$/\1/p' "$brx_cache/sqlite/sqlite3.h")"
        return
    fi
    [[ $file == /* && $file != "$brx_build"/* ]] || return 0
    package=$(dpkg -S "$(realpath "$file")" | sed -n '1s/:.*//p')
    [ -n "$package" ] || die "nobody knows where $file comes from"
    case $package in
    gcc-mingw* | g++-mingw*) licence='GPL-3.0-or-later WITH GCC-exception-3.1' ;;
    mingw-w64-*) licence='ZPL-2.1 AND MIT AND BSD-3-Clause' ;;
    *) die "NOTICE does not name $package, which is linked in" ;;
    esac
    printf '%s\t%s\t%s\n' "$package" "$(dpkg-query -W -f '${Version}' "$package")" "$licence"
}

# sbom_links: "file in the kit TAB name TAB version TAB licence" for each part of each file.
sbom_links() {
    local all parts file pdb linked part
    all=$(sbom_binaries | while IFS=$'\t' read -r file pdb; do
        [ -s "$pdb" ] || die "the linker left no ${pdb#"$brx_top"/}"
        linked_files "$pdb" | sed "s#^#$file\t#"
    done) || return
    # Each is asked for once: that takes its time.
    parts=$(cut -f 2 <<<"$all" | LC_ALL=C sort -u | while read -r linked; do
        part=$(sbom_part "$linked") || exit
        [ -z "$part" ] || printf '%s\t%s\n' "$linked" "$part"
    done) || return
    awk -F '\t' 'NR == FNR { part[$1] = $2 "\t" $3 "\t" $4; next } $2 in part { print $1 "\t" part[$2] }' \
        <(say "$parts") <(say "$all") | LC_ALL=C sort -u
}

# sbom_sums KIT: "file TAB SHA-1 TAB SHA-256".
sbom_sums() {
    local file rest
    sbom_binaries | while IFS=$'\t' read -r file rest; do
        printf '%s\t%s\t%s\n' "$file" "$(sha1sum <"$1/$file" | cut -d ' ' -f 1)" "$(sha256sum <"$1/$file" | cut -d ' ' -f 1)"
    done
}

# make_sbom KIT VERSION: sbom.spdx.json in the kit, and the terms of each Debian package in the folder licenses.
make_sbom() {
    local kit=$1 version=$2 links name rest
    links=$(sbom_links)
    mkdir -p "$kit/licenses"
    cut -f 2 <<<"$links" | sort -u | grep -v '^SQLite$' | while read -r name; do
        cp "/usr/share/doc/$name/copyright" "$kit/licenses/$name.txt"
    done
    cp /usr/share/common-licenses/GPL-3 "$kit/licenses/GPL-3.txt"
    jq -n --arg links "$links" --arg sums "$(sbom_sums "$kit")" --arg version "$version" \
        --arg company "$(cmake_text BRX_COMPANY)" --arg copyright "$(cmake_text BRX_COPYRIGHT)" \
        --arg license "$(cat "$brx_top/LICENSE")" --arg created "$(TZ=UTC date --date="@$SOURCE_DATE_EPOCH" +%FT%TZ)" \
        --arg id "$(guid "sbom $version $(sbom_sums "$kit" | sha256sum)")" \
        -f "$brx_top/scripts/package/sbom.jq" >"$kit/sbom.spdx.json"
}
