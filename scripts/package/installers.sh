# The installers; sourced by ./package.
#
# make_installers KIT OUT VERSION: from the kit in KIT, into OUT: NSIS and MSI, each for 64-bit Windows (with both DLLs)
# and for 32-bit Windows. They write the registry themselves, so that removing, repairing and the other bits need no
# program that is run.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/kit.sh"

# guid NAME: the same for the same name.
guid() {
    local hash
    hash=$(printf 'brxOpcDlgs6 %s' "$1" | sha256sum)
    hash=${hash^^}
    say "${hash:0:8}-${hash:8:4}-5${hash:13:3}-8${hash:17:3}-${hash:20:12}"
}

cmake_text() { sed -n "s/^$1:STRING=//p" "$brx_build/windows-x64/CMakeCache.txt"; }

# stage KIT FOLDER ARCHITECTURE..: what is installed.
stage() {
    local kit=$1 folder=$2 arch
    shift 2
    rm -rf "$folder"
    mkdir -p "$folder/samples"
    for arch in "$@"; do
        cp -rp "$kit/$arch" "$folder/"
        cp -rp "$kit/samples/$arch" "$folder/samples/"
    done
    cp -rp "$kit/doc" "$kit/brxOpcDlgs6.chm" "$kit/LICENSE" "$kit/NOTICE" "$folder/"
    (cd "$kit/samples" && find . -mindepth 1 -maxdepth 1 ! -name x64 ! -name x86) | while read -r each; do
        cp -rp "$kit/samples/$each" "$folder/samples/"
    done
}

# staged_files FOLDER samples|dialogs: by their names below it, sorted.
staged_files() {
    local from=(! -path './samples/*')
    [ "$2" = dialogs ] || from=(-path './samples/*')
    (cd "$1" && find . -type f "${from[@]}" -printf '%P\n') | LC_ALL=C sort
}

nsis_files() {
    local file folder=''
    staged_files "$1" "$2" | while read -r file; do
        if [ "$(dirname "$file")" != "$folder" ]; then
            folder=$(dirname "$file")
            if [ "$folder" = . ]; then say 'SetOutPath "$INSTDIR"'; else say "SetOutPath \"\$INSTDIR\\${folder//\//\\}\""; fi
        fi
        say "File \"$file\""
    done
    say 'SetOutPath "$INSTDIR"'
}

nsis_removal() {
    local each
    (staged_files "$1" dialogs && staged_files "$1" samples) | while read -r each; do
        say "Delete \"\$INSTDIR\\${each//\//\\}\""
    done
    # What lies deeper goes first.
    (cd "$1" && find . -mindepth 1 -depth -type d -printf '%P\n') | while read -r each; do
        say "RMDir \"\$INSTDIR\\${each//\//\\}\""
    done
}

# nsis_registry GENERATED ARCHITECTURE..: the first architecture is the system's. It is written last: where all programs
# of a user see the same classes, as in Wine, its DLL is found.
nsis_registry() {
    local generated=$1 first=$2 arch bits shared
    shift
    : >"$generated/register.nsh"
    : >"$generated/unregister.nsh"
    for arch in $(printf '%s\n' "$@" | tac); do
        bits=$(bits_of "$arch")
        shared=0
        [ "$arch" != "$first" ] || shared=1
        {
            say "SetRegView $bits"
            registration "$arch" |
                awk -F '\t' -v bits="$bits" -v shared="$shared" -v deed=write -f "$brx_top/scripts/package/installer.awk"
        } >>"$generated/register.nsh"
        registration "$arch" | tac | awk -F '\t' -v bits="$bits" -v shared="$shared" -v deed=remove \
            -f "$brx_top/scripts/package/installer.awk" >"$generated/unregister-$arch.nsh"
        say "!insertmacro UnlessAnothers $bits \"$generated/unregister-$arch.nsh\"" >>"$generated/unregister.nsh"
    done
}

# make_nsis STAGED OUT.exe VERSION ARCHITECTURE..
make_nsis() {
    local staged=$1 out=$2 version=$3 generated=$1.nsis bits target first
    shift 3
    bits=$(bits_of "$1")
    target=amd64-unicode
    [ "$bits" = 64 ] || target=x86-unicode
    rm -rf "$generated"
    mkdir -p "$generated"
    nsis_files "$staged" dialogs >"$generated/files.nsh"
    nsis_files "$staged" samples >"$generated/samples.nsh"
    nsis_removal "$staged" >"$generated/remove.nsh"
    nsis_registry "$generated" "$@"
    first=$(registration "$1" | sed -nE 's/.*\tCLSID\\([^\\]*)\t.*/\1/p' | sed -n 1p)
    local kilobytes
    kilobytes=$(du -k --apparent-size -s "$staged" | cut -f 1)
    (cd "$staged" && makensis -V2 -WX -NOCD -DTARGET="$target" -DBITS="$bits" -DVERSION="$version" -DOUT="$out" \
        -DGENERATED="$generated" -DFIRST_CLASS="$first" -DKILOBYTES="$kilobytes" -DCOMPANY="$(cmake_text BRX_COMPANY)" \
        -DCOPYRIGHT="$(cmake_text BRX_COPYRIGHT)" ${BRX_SIGN:+"-DSIGN=$BRX_SIGN"} "$brx_top/packaging/installer.nsi") || return
    sign "$out"
}

make_installers() {
    local kit=$1 out=$2 version=$3 work=$2.work
    mkdir -p "$work" "$out"
    stage "$kit" "$work/x64" x64 x86
    stage "$kit" "$work/x86" x86
    make_nsis "$work/x64" "$out/brxOpcDlgs6-$version-x64.exe" "$version" x64 x86 &&
        make_nsis "$work/x86" "$out/brxOpcDlgs6-$version-x86.exe" "$version" x86 &&
        make_msi "$work/x64" "$out/brxOpcDlgs6-$version-x64.msi" "$version" x64 &&
        make_msi "$work/x86" "$out/brxOpcDlgs6-$version-x86.msi" "$version" x86 || return
    rm -rf "$work"
}
