# The check kit tried under Wine, for the check part `package`, which says $out, $work and $version. Sourced.
#
# It is run as a person runs it, on a prefix of its own, from a folder with a blank in its name.
# shellcheck shell=bash disable=SC2154

source "$(dirname "${BASH_SOURCE[0]}")/../wine-lib.sh"

check_kit="$work/check kit/brxOpcDlgs6-$version-checks"

# What every Windows has had since 7, in the folder of the system.
system_dlls='advapi32 comctl32 gdi32 kernel32 msvcrt ole32 oleacc oleaut32 shell32 user32 uxtheme version'

needs_only_windows() {
    local file each foreign=''
    while read -r file; do
        while read -r each; do
            [[ " $system_dlls " == *" ${each%.dll} "* ]] || foreign+="error: ${file#"$check_kit"/} needs $each"$'\n'
        done < <(x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p' | tr '[:upper:]' '[:lower:]')
    done < <(find "$check_kit" -name '*.exe' -o -name '*.dll')
    [ -z "$foreign" ] || { say "$foreign" && return 1; }
}

# Each program in the lists is there, and each that could be is in a list.
lists_are_whole() {
    local arch file wrong=''
    for arch in x64 x86; do
        [ -s "$check_kit/$arch/brxCheck.exe" ] || wrong+="error: there is no $arch/brxCheck.exe"$'\n'
        cmp "$check_kit/$arch/src/dll/brxOpcDlgs6.dll" "$kit/$arch/brxOpcDlgs6.dll" ||
            wrong+="error: $arch has not the DLL of the developer's kit"$'\n'
        while read -r file; do
            [ -s "$check_kit/$arch/$file" ] || wrong+="error: there is no $arch/$file"$'\n'
        done < <(cut -d ' ' -f 4 "$check_kit/$arch/programs.txt")
        while read -r file; do
            grep -qF " $file" "$check_kit/$arch/programs.txt" || wrong+="error: nothing runs $arch/$file"$'\n'
        done < <(cd "$check_kit/$arch" && find checks -name '*.exe')
    done
    [ -z "$wrong" ] || { say "$wrong" && return 1; }
}

tell_no_builder() {
    local told
    told=$(grep -rlF "$brx_top" "$check_kit" || true)
    [ -z "$told" ] || { say "error: they name the folder that they were built in: $told" && return 1; }
}

# run_kit SECONDS FOLDER ARG..
run_kit() {
    local seconds=$1 folder=$2
    shift 2
    wine_run "$seconds" cmd /c "$(wine_path "$folder/check.cmd")" "$@"
}

# A program that does not start, one that takes too long, a DLL that is not there.
notices_what_is_spoiled() {
    local arch=$1 spoiled="$work/spoiled kit $1" told status=0
    rm -rf "$spoiled"
    cp -r "$check_kit" "$spoiled"
    say "no program" >"$spoiled/$arch/checks/com/brx_com_checks.exe"
    sed -i 's/^[0-9]* gtest brx_screen_checks/1 gtest brx_screen_checks/' "$spoiled/$arch/programs.txt"
    rm "$spoiled/$arch/src/dll/brxOpcDlgs6.dll"
    told=$(run_kit 300 "$spoiled" brx_com_checks brx_screen_checks brx_server_checks \
        --gtest_filter='TypeLibraryTest.*:WindowsScreenTest.*') || status=$?
    say "$told"
    [ "$status" -eq 1 ] || { say "error: it ended with status $status" && return 1; }
    grep -q '^FAILED: it does not start: error ' <<<"$told" || { say "error: no word of the program" && return 1; }
    grep -q '^FAILED: it was ended at its time limit, in WindowsScreenTest\.' <<<"$told" ||
        { say "error: no word of the program that takes too long" && return 1; }
    grep -q '^FAILED: Type library: ' <<<"$told" || { say "error: no word of the DLL" && return 1; }
    tail -n 1 <<<"$told" | grep -qE '^[0-9]+ passed, [1-9][0-9]* failed, [0-9]+ skipped.?$'
}

# try_kit BITS: in a shell of its own, for the two run side by side; leaves its counts.
try_kit() {
    local bits=$1 arch=x64
    [ "$bits" = 64 ] || arch=x86
    passed=0 failed=0 skipped=0
    rm -rf "$brx_build/wine$bits-kit"
    trap wine_end EXIT
    wine_begin "$bits" "wine$bits-kit"
    # Each writes into a folder of its own.
    local own="$work/check kit $bits"
    cp -r "$check_kit" "$own"
    rule "$bits: the check kit notices what is spoiled" notices_what_is_spoiled "$arch"
    run_program "$bits: the check kit" run_kit 6000 "$own"
    say "$passed $failed $skipped" >"$work/kit-$bits.counts"
}

try_check_kit() {
    need "the check kit can be unpacked" unzip -q -d "$work/check kit" "$out/brxOpcDlgs6-$version-checks.zip"
    rule "the check kit needs nothing but Windows" needs_only_windows
    rule "the check kit is whole" lists_are_whole
    rule "the check kit tells nothing of its builder" tell_no_builder
    local bits all=(64) good bad left
    if "$brx_top/scripts/wine32.sh" available; then
        all+=(32)
    else
        skip "the check kit in 32 bits" "there is no 32-bit root here, or it cannot be entered"
    fi
    rm -f "$work"/kit-*.counts
    for bits in "${all[@]}"; do (try_kit "$bits") >"$work/kit-$bits.told" & done
    wait
    for bits in "${all[@]}"; do
        cat "$work/kit-$bits.told"
        if read -r good bad left <"$work/kit-$bits.counts"; then
            passed=$((passed + good)) failed=$((failed + bad)) skipped=$((skipped + left))
        else
            fail "$bits: the check kit" "its trial did not come to its end"
        fi
    done
}
