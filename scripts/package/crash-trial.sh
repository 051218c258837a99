# A deliberate crash told as functions and lines, for the check part `package`, which says $kit and $work. Sourced.
# Everything is the kit's: the sample in C++, the DLL, its PDB and what reads it.
# shellcheck shell=bash disable=SC2154

source "$(dirname "${BASH_SOURCE[0]}")/../wine-lib.sh"

compile_crash() { # compile_crash TRIPLE ARCHITECTURE
    local made=$work/crash-$2
    mkdir -p "$made"
    "$1-gcc" -c -o "$made/identifiers.o" "$kit/include/brxOpcDlgs6_i.c" &&
        "$1-g++" -std=c++17 -Wall -Wextra -Wpedantic -Werror -static -I "$kit/include" -o "$made/crash.exe" \
            "$kit/samples/cpp/crash.cpp" "$made/identifiers.o" -lole32 -loleaut32 -luuid
}

# It ends with 3 and has written where it was.
crash() {
    local status=0
    wine_run 60 "$work/crash-$1/crash.exe" "$(wine_path "$kit/$1/brxOpcDlgs6.dll")" >"$work/crash-$1/stack.txt" ||
        status=$?
    if [ "$status" -ne 3 ] || ! grep -q '^Exception 0xc0000005' "$work/crash-$1/stack.txt"; then
        say "error: it ended with $status:" "$(cat "$work/crash-$1/stack.txt")"
        return 1
    fi
}

# told_crash ARCHITECTURE WANTED..: one after the other, from the member that crashed out to the host, are the functions
# and files told that were under way.
told_crash() {
    local arch=$1 told line each
    shift
    told=$(wine_run 120 "$kit/symbols/$arch/brxResolve.exe" "$(wine_path "$work/crash-$arch/stack.txt")" \
        "$(wine_path "$kit/$arch/brxOpcDlgs6.dll")" | tr -d '\r')
    line=$told
    for each; do
        case $line in
        *$each*) line=${line#*"$each"} ;;
        *) say "error: there is no $each in its place in" "$told" && return 1 ;;
        esac
    done
}

# The lines are those of the sources as they are.
line_of() { say "$(basename "$2"):$(grep -nF -- "$1" "$brx_top/$2" | sed -n '1s/:.*//p')"; }

try_crash() { # try_crash BITS ARCHITECTURE TRIPLE
    need "the $2 sample that crashes compiles" compile_crash "$3" "$2"
    wine_begin "$1" "wine$1-crash"
    rule "the $2 sample crashes in a member that a dialog calls" crash "$2"
    rule "brxResolve tells functions and lines of the $2 crash" told_crash "$2" \
        "FromCom<brx::hlxOPCServers>::Count" from_com_collection.h: \
        brx::dlgServerSelect::BuildList "$(line_of 'OPCServers->Count()' src/servers/dlgServerSelect.cpp)" \
        brx::dlgServerSelect::Form_Load brx::ServerSelect::Show ServerSelectObject::Show public_classes.cpp:
    wine_end
}
