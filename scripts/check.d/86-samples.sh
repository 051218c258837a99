#!/usr/bin/env bash
# The samples for the makers of hosts, in each language that can be run here, on real windows.
# On request only: the compilers of other languages come with what packing needs.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/wine-lib.sh"
source "$brx_top/scripts/package/kit.sh"
cd "$brx_top"

samples=$brx_top/samples
work=$brx_build/samples-check
mingw=x86_64-w64-mingw32

# What the person picks, and what each sample then prints.
item="Filler.Head 1.Weight"
picked="Simulation.Packing.1: $item"

register() {
    local dll
    for dll in "$brx_dll" sample/objects/brxSample.dll; do
        wine_run 60 regsvr32 /s "$(wine_path "$brx_build/windows-x64/$dll")" || return
    done
}

# wait_for TITLE: until a window has it.
wait_for() {
    local tries
    for ((tries = 0; tries < 300; ++tries)); do
        xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    say "error: no window is called $1"
    return 1
}

# The first server, and the item by its identifier.
pick_by_keys() {
    wait_for "Select OPC Server" && sleep 0.5 && xdotool key Down Return || return
    wait_for "Select Item.*" && sleep 1 && xdotool key alt+c && xdotool type --delay 30 "$item" && xdotool key Return
}
third_by_keys() { wait_for "Select OPC Server" && sleep 0.5 && xdotool key Down Down Down Return; }
# Everything that a configuration has, but the times.
configure_by_keys() {
    wait_for "Configuration Properties" && sleep 0.5 && xdotool key alt+g || return
    wait_for "OPC Test Configuration" && sleep 0.5 && xdotool key alt+a Tab space || return
    wait_for Characteristics && sleep 0.5 && xdotool key Return && sleep 0.5 && xdotool key alt+b Tab space || return
    wait_for "Select Item.*" && sleep 1 && xdotool key alt+c && xdotool type --delay 30 Filler.Weight || return
    xdotool key Return && sleep 1 && xdotool key alt+d Return && sleep 1 && xdotool key alt+3 alt+b || return
    wait_for "Descriptor Type" && sleep 0.5 && xdotool key Home Return || return
    wait_for "Descriptor Properties.*" && sleep 0.5 && xdotool type --delay 30 Bottles && xdotool key alt+b || return
    xdotool type --delay 30 "Bottle 1 l" && xdotool key Return && sleep 1 && xdotool key alt+1 alt+a || return
    xdotool type --delay 30 "Line 9" && xdotool key Return
}
leave_by_keys() { wait_for "Select OPC Server" && sleep 0.5 && xdotool key Escape; }

# shown_by KEYS COMMAND..: what it prints, and "status N", while a person uses the keyboard.
shown_by() {
    local keys=$1 status=0 output
    shift
    "$keys" >"$work/person" &
    output=$(wine_run 60 "$@" 2>"$work/errors") || status=$?
    kill $! 2>/dev/null || true
    printf '%s\nstatus %d\n' "${output//$'\r'/}" "$status"
}
prints() {
    local wanted=$1 found
    shift
    found=$(shown_by "$@")
    [ "$found" = "$wanted" ] || { say "error: it printed $found" "$(cat "$work/person" "$work/errors")" && return 1; }
}

# try_sample LANGUAGE COMMAND..
try_sample() {
    local language=$1
    shift
    rule "$language: the sample picks a server and an item" prints "$picked"$'\nstatus 0' pick_by_keys "$@"
    rule "$language: the sample ends with 1 when nothing was picked" prints $'\nstatus 1' leave_by_keys "$@"
}

# try_configuration LANGUAGE COMMAND
try_configuration() {
    rule "$1: a host with a whole model of its own has its configuration set up" \
        prints $'Line 9\ntest Weight: Filler.Weight\ndescriptor Bottle 1 l\nstatus 0' configure_by_keys "$2"
}

compile_c() {
    local include=$work/kit/include name
    for name in pick serve; do
        "$mingw-gcc" -std=c99 -Wall -Wextra -Werror -static -I "$include" -o "$work/$name-c.exe" \
            "$samples/c/$name.c" "$include/brxOpcDlgs6_i.c" "$include/brxOpcAuto6_i.c" -lole32 -loleaut32 -luuid || return
    done
}
compile_cpp() {
    local include=$work/kit/include name
    for name in brxOpcDlgs6 brxOpcAuto6 brxDatabase6; do
        "$mingw-gcc" -c -o "$work/$name.o" "$include/${name}_i.c" || return
    done
    for name in pick serve configure/configure; do
        "$mingw-g++" -std=c++17 -Wall -Wextra -Wpedantic -Werror -static -I "$include" -o "$work/${name#*/}-cpp.exe" \
            "$samples/cpp/$name.cpp" "$work"/*.o -lole32 -loleaut32 -luuid || return
    done
}
# Free Pascal's own units for Windows, which Debian has as sources only.
pascal_sources=$(echo /usr/share/fpcsrc/*)
pascal_units=$brx_cache/pascal-win64
pascal() {
    local rtl=$pascal_sources/rtl folder search=()
    for folder in win inc objpas objpas/sysutils objpas/classes win64 win/wininc x86_64; do search+=("-Fi$rtl/$folder" "-Fu$rtl/$folder"); done
    for folder in rtl-objpas/src/{win,inc,common} winunits-base/src fcl-base/src fcl-registry/src; do
        search+=("-Fi$pascal_sources/packages/$folder" "-Fu$pascal_sources/packages/$folder")
    done
    ppcx64 -Twin64 -n -O1 -v0e "${search[@]}" "-Fu$pascal_units" "-FU$pascal_units" "$@"
}
make_pascal_units() {
    [ ! -s "$pascal_units/done" ] || return 0
    rm -rf "$pascal_units"
    mkdir -p "$pascal_units"
    pascal -Us -Sg "$pascal_sources/rtl/win64/system.pp" && pascal "$pascal_sources/rtl/win64/sysinit.pp" &&
        pascal "$pascal_sources/rtl/win64/buildrtl.pp" && date >"$pascal_units/done"
}
compile_pascal() {
    local name units=$work/pascal
    # The compiler takes for made what lies where it puts its own.
    cp -r "$pascal_units" "$units"
    for name in samples/pascal/{pick,serve,configure/configure} scripts/package/base; do
        pascal "-Fu$work/kit/pascal" "-Fu$(dirname "$name")" "-FU$units" "-o$work/${name##*/}-pascal.exe" "$name.pas" || return
    done
}
# Those that no sample uses.
compile_pascal_units() {
    local unit
    for unit in "$work/kit/pascal/"*.pas; do pascal "-Fu$work/kit/pascal" "-FU$work/pascal" "$unit" || return; done
}

csharp() { mcs -langversion:5 -warn:4 -warnaserror -r:Microsoft.CSharp "$@"; }
compile_csharp() {
    csharp "-out:$work/Pick.exe" "$samples/csharp/Pick.cs" &&
        csharp "-out:$work/Serve.exe" "$samples/csharp/Serve.cs" "$work/kit/csharp/"*.cs
}
# Where each member lies in its interface's table: as the compiler lays it out, and by the headers for C++.
csharp_tables() {
    csharp -target:library "-out:$work/model.dll" "$work/kit/csharp/"*.cs &&
        csharp "-out:$work/slots.exe" "$brx_top/scripts/package/slots.cs" &&
        (cd "$work" && mono slots.exe model.dll) | sed 's/^[^.]*\.//; s/ set_/ put_/' | LC_ALL=C sort
}
header_tables() {
    awk '/^[A-Za-z_]+ : public IDispatch/ && !/^DI/ { name = $1; slot = 6 }
         name != "" && /virtual HRESULT STDMETHODCALLTYPE/ { sub(/\(.*/, "", $4); print name, ++slot, $4 }
         /^};/ { name = "" }' "$work/kit/include/"*.h | LC_ALL=C sort
}
same_tables() {
    csharp_tables >"$work/tables-cs" || return
    [ "$(header_tables | wc -l)" -gt 200 ] && diff <(header_tables) "$work/tables-cs"
}

# Visual Basic wants them all.
has_members() {
    local class=$1 name missing=''
    while read -r name; do
        grep -q "^Private .* hlx${class}_$name(" "$samples/vba/${class#OPC}.cls" || missing+=" $name"
    done < <(awk -f scripts/package/idl.awk src/com/idl/brxOpcAuto6.idl |
        awk -F '\t' -v name="_hlx$class" '$1 == "interface" { inside = $2 == name } inside && $1 == "member" { print $3 }')
    [ -z "$missing" ] || { say "error: ${class#OPC}.cls lacks$missing" && return 1; }
}

parse_python() {
    python3 -c 'import ast, sys; [ast.parse(open(name).read()) for name in sys.argv[1:]]' "$samples/python/"*.py
}

# Each has a page, and the overview leads to it.
has_pages() {
    local folder missing=''
    for folder in "$samples"/*/; do
        folder=$(basename "$folder")
        [ -s "$samples/$folder/README.md" ] && grep -q "($folder/README.md)" "$samples/README.md" || missing+=" $folder"
    done
    [ -z "$missing" ] || { say "error: no page, or not in samples/README.md:$missing" && return 1; }
}

rm -rf "$work"
mkdir -p "$work/kit"
rule "each sample has a page" has_pages
need "what packing needs is there" scripts/setup.sh --package
need "the component and the sample's objects build" build windows-x64 brxOpcDlgs6 brxSample
need "the headers can be made" kit_interfaces "$work/kit"
trap wine_end EXIT
wine_begin 64 wine64-samples
need "both can be registered" register
try_sample VBScript cscript //nologo "$(wine_path "$samples/vbscript/pick.vbs")"
try_sample JScript cscript //nologo "$(wine_path "$samples/jscript/pick.js")"
need "the sample in C compiles" compile_c
try_sample C "$work/pick-c.exe"
rule "C: a host with objects of its own has its third server picked" \
    prints $'Server 3\nstatus 0' third_by_keys "$work/serve-c.exe"
need "the sample in C++ compiles" compile_cpp
try_sample C++ "$work/pick-cpp.exe"
rule "C++: a host with objects of its own has its third server picked" \
    prints $'Server 3\nstatus 0' third_by_keys "$work/serve-cpp.exe"
try_configuration C++ "$work/configure-cpp.exe"
need "Free Pascal's units for Windows can be made" make_pascal_units
need "the sample in Object Pascal compiles" compile_pascal
rule "Object Pascal: the units of the kit compile" compile_pascal_units
try_sample "Object Pascal" "$work/pick-pascal.exe"
rule "Object Pascal: a host with objects of its own has its third server picked" \
    prints $'Server 3\nstatus 0' third_by_keys "$work/serve-pascal.exe"
try_configuration "Object Pascal" "$work/configure-pascal.exe"
told_by_base() {
    local wanted="80004001 Base hlxOPCServers.Count is not implemented.
800A0009 Base There is no such element.
00000000
report 5 text source place version
withdrawn
0 2, 1 TRUE, 1, 0, 0
1 3 three 5 0
80020005"
    diff <(say "$wanted") <(wine_run 60 "$work/base-pascal.exe" | sed 's/[[:space:]]*$//')
}
rule "Object Pascal: the base tells errors, takes reports, enumerates and has arrays" told_by_base
rule "C#: the samples compile, with the base of the kit" compile_csharp
rule "C#: each interface has its members in the order of its table" same_tables
rule "Visual Basic: the server has every member that Implements wants" has_members OPCServer
rule "Visual Basic: the servers have every member that Implements wants" has_members OPCServers
rule "the samples in Python can be parsed" parse_python
for language in "C#" PowerShell "Visual Basic" Python; do
    skip "$language: the sample is run" "there is nothing here to run it with"
done
part_end
