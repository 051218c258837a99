# The installers and the DLL of the kit tried under Wine, for the check part `package`, which says $kit, $out, $work and
# $version. Sourced.
#
# A machine is a Wine prefix of its own. What is on it is compared before and after (machine.sh).
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/installers.sh"
source "$(dirname "${BASH_SOURCE[0]}")/msi.sh"
source "$(dirname "${BASH_SOURCE[0]}")/machine.sh"

earlier=5.9.0
programs="drive_c/Program Files/brxOpcDlgs6"

# An earlier version, with a file that this one does not have.
make_earlier() {
    SOURCE_DATE_EPOCH=$(git -C "$brx_top" log -1 --format=%ct)
    cp -r "$kit" "$work/earlier-kit"
    say "of an earlier version" >"$work/earlier-kit/doc/earlier.html"
    make_installers "$work/earlier-kit" "$work/earlier" "$earlier"
}

script_creates_all() { wine_run 120 cscript //nologo "$(wine_path "$brx_top/checks/package/create-all.vbs")"; }
script_creates_none() { ! script_creates_all; }
is_there() { [ -e "$WINEPREFIX/$programs/$1" ] || { say "error: there is no $1" && return 1; }; }
is_gone() { [ ! -e "$WINEPREFIX/$programs/$1" ] || { say "error: there is still $1" && return 1; }; }
exit_status() { # exit_status N COMMAND.. : it ends with N
    local wanted=$1 status=0
    shift
    "$@" || status=$?
    [ "$status" -eq "$wanted" ] || { say "error: it ended with status $status" && return 1; }
}

# install KIND VERSION ARG.. and its opposite, for both kinds.
installer_of() {
    local folder=$out
    [ "$2" = "$version" ] || folder=$work/earlier
    say "$folder/brxOpcDlgs6-$2-$arch.$1"
}
install() {
    local kind=$1 what
    what=$(installer_of "$1" "$2")
    shift 2
    if [ "$kind" = exe ]; then wine_run 300 "$what" /S "$@"; else wine_run 300 msiexec /i "$(wine_path "$what")" /qn "$@"; fi
}
# The installer once more; of a package everything anew, which Wine's msiexec does not do for /fa.
repair() {
    if [ "$1" = exe ]; then
        install exe "$version"
    else
        install msi "$version" REINSTALL=ALL REINSTALLMODE=amus
    fi
}
uninstall() {
    local tries
    if [ "$1" = msi ]; then
        wine_run 300 msiexec /x "$(wine_path "$(installer_of msi "$version")")" /qn "${@:2}"
        return
    fi
    wine_run 300 "$(find "$WINEPREFIX/drive_c" -path '*/brxOpcDlgs6/uninstall.exe')" /S "${@:2}"
    # It goes on as a copy of itself.
    for ((tries = 0; tries < 60; ++tries)); do
        [ -n "$(find "$WINEPREFIX/drive_c" -path '*/brxOpcDlgs6/uninstall.exe')" ] || break
        sleep 0.5
    done
    sleep 1
    # The copy goes with the next start of the system.
    wine_tool 60 wineserver -k || true
    wine_run 60 wineboot
}

machine_is_as_before() {
    machine_snapshot "$work/$label.after"
    machine_same "$work/$label.before" "$work/$label.after"
}

# What an installer has registered is what the DLL registers by itself, in the view of its bits.
registers_as_the_dll() {
    machine_snapshot "$work/$label.installed"
    LC_ALL=C comm -13 "$work/$label.before" "$work/$label.installed" >"$work/$label.came"
    diff "$work/dll-$arch.classes" <(classes_in "$1" "$work/$label.came" | own_classes |
        LC_ALL=C sort) | sed -n 's/^[<>]/error: &/p' | { ! grep .; }
}
# What a DLL of the other bits has, and Windows Installer's books, left out.
own_classes() { grep -vE '^(installer|wow6432node)\\|^typelib.*win'"$([ "$bits" = 64 ] && say 32 || say 64)"$'\t' || true; }
# On 64-bit Windows programs of 32 bits see the same as on 32-bit Windows, other than what all share.
registers_the_other() {
    diff <(registration x86 | awk -F '\t' '$1 == "own"' | wc -l) \
        <(classes_in machine "$work/$label.came" | grep -cE '^wow6432node\\|^typelib.*win32'$'\t') >/dev/null ||
        { say "error: programs of 32 bits find something else" && return 1; }
}

# try_installer KIND: for all users, through all of its life.
try_installer() {
    local kind=$1 none=()
    label=$bits-$kind
    machine_snapshot "$work/$label.before"
    rule "$label: no class is there before" script_creates_none
    rule "$label: an earlier version is installed" install "$kind" "$earlier"
    rule "$label: it brings its files" is_there doc/earlier.html
    rule "$label: this version replaces it" install "$kind" "$version"
    rule "$label: what only the earlier one had is gone" is_gone doc/earlier.html
    rule "$label: the DLL is there" is_there "$arch/brxOpcDlgs6.dll"
    rule "$label: no samples, since nobody asked for them" is_gone samples
    rule "$label: a script creates all classes" script_creates_all
    rule "$label: it registers what the DLL registers" registers_as_the_dll machine
    [ "$arch" = x86 ] || rule "$label: it registers the 32-bit DLL" registers_the_other
    rule "$label: an earlier version does not replace this one" refuses_earlier "$kind"
    rule "$label: this version is still there" script_creates_all
    [ "$kind" = msi ] || rule "$label: with a DLL that cannot be replaced nothing is changed" leaves_what_is_kept
    rm -f "$WINEPREFIX/$programs/$arch/brxOpcDlgs6.dll"
    rule "$label: without its DLL nothing can be created" script_creates_none
    rule "$label: it is repaired" repair "$kind"
    rule "$label: a script creates all classes again" script_creates_all
    rule "$label: it is removed" uninstall "$kind"
    rule "$label: nothing is left" machine_is_as_before

    label=$bits-$kind-samples
    machine_snapshot "$work/$label.before"
    if [ "$kind" = exe ]; then none=(/Samples); else none=(ADDLOCAL=ALL); fi
    rule "$label: it is installed with samples" install "$kind" "$version" "${none[@]}"
    rule "$label: the samples are there" is_there samples/scripts/select-server.vbs
    rule "$label: it is removed" uninstall "$kind"
    rule "$label: nothing is left" machine_is_as_before
}
# A program that runs from the DLL does not keep Wine from writing it, so here a folder cannot be written in its place.
leaves_what_is_kept() {
    local dll=$WINEPREFIX/$programs/$arch/brxOpcDlgs6.dll
    mv "$dll" "$dll.away"
    mkdir "$dll"
    exit_status 5 install exe "$version" || return
    rmdir "$dll"
    mv "$dll.away" "$dll"
    script_creates_all
}
refuses_earlier() {
    if [ "$1" = exe ]; then exit_status 3 install exe "$earlier"; else ! install msi "$earlier"; fi
}

# Wine takes the empty ALLUSERS for what MSIINSTALLPERUSER=1 is on Windows.
try_installer_for_one() {
    local kind=$1 switch=/CurrentUser
    [ "$kind" = exe ] || switch=ALLUSERS=
    label=$bits-$kind-user
    machine_snapshot "$work/$label.before"
    rule "$label: it is installed for one user" install "$kind" "$version" "$switch"
    rule "$label: it registers what the DLL registers" registers_as_the_dll user
    rule "$label: it registers nothing for others" nothing_for_others
    rule "$label: it is removed" uninstall "$kind" "$switch"
    rule "$label: nothing is left" machine_is_as_before
}
nothing_for_others() {
    classes_in machine "$work/$label.came" | own_classes | sed 's/^/error: /' | { ! grep .; }
}

# The sums of what the DLL of the kit registers by itself: $work/dll-ARCH.classes.
registered_by_the_dll() {
    machine_snapshot "$work/dll-$arch.before"
    wine_run 60 regsvr32 /s "$(wine_path "$kit/$arch/brxOpcDlgs6.dll")"
    machine_snapshot "$work/dll-$arch.installed"
    wine_run 60 regsvr32 /s /u "$(wine_path "$kit/$arch/brxOpcDlgs6.dll")"
    LC_ALL=C comm -13 "$work/dll-$arch.before" "$work/dll-$arch.installed" | classes_in machine /dev/stdin |
        own_classes | LC_ALL=C sort >"$work/dll-$arch.classes"
    grep -q versionindependentprogid "$work/dll-$arch.classes"
}

# A host in a folder with the DLL and the two manifests, compiled with nothing but the kit.
compile_host() {
    local triple=$1 folder=$work/host-$arch
    mkdir -p "$folder"
    "$triple-gcc" -c -o "$folder/identifiers.o" "$kit/include/brxOpcDlgs6_i.c"
    "$triple-g++" -std=c++17 -Wall -Wextra -Werror -static -I "$kit/include" -o "$folder/host.exe" \
        "$brx_top/checks/package/create_all.cpp" "$folder/identifiers.o" -lole32 -luuid
}
host_creates_all() { wine_run 60 "$work/host-$arch/host.exe"; }
host_creates_none() { ! host_creates_all; }

try_unregistered() {
    local triple=x86_64-w64-mingw32
    [ "$arch" = x64 ] || triple=i686-w64-mingw32
    rule "$bits: a host compiles with the kit alone" compile_host "$triple"
    cp "$kit/$arch/brxOpcDlgs6.dll" "$work/host-$arch/"
    rule "$bits: without manifest and registration it finds no class" host_creates_none
    cp "$kit/$arch/"*.manifest "$work/host-$arch/"
    cp "$kit/host.exe.manifest" "$work/host-$arch/"
    rule "$bits: with the manifests it finds all" host_creates_all
}

# try_system BITS ARCHITECTURE
try_system() {
    bits=$1 arch=$2
    rm -rf "$brx_build/wine$bits-package"
    wine_begin "$bits" "wine$bits-package"
    # What the first use of these leaves in a new prefix is none of the installers'.
    script_creates_all >/dev/null 2>&1 || true
    wine_run 60 msiexec /x '{00000000-0000-0000-0000-000000000000}' /qn >/dev/null 2>&1 || true
    try_unregistered
    rule "$bits: what the DLL registers is known" registered_by_the_dll
    local kind
    for kind in exe msi; do
        try_installer "$kind"
        try_installer_for_one "$kind"
    done
    wine_end
}
