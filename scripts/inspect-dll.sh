#!/usr/bin/env bash
# Looks into the built DLL without running it: processor, exports, imports, hardening, size.
#
#   scripts/inspect-dll.sh 64|32 FILE.dll
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

bits=$1 dll=$2
[ -f "$dll" ] || die "there is no ${dll#"$brx_top"/}"
headers=$(objdump -p "$dll")
problems=0
problem() {
    say "error: $*"
    problems=$((problems + 1))
}

format=pei-x86-64
[ "$bits" = 64 ] || format=pei-i386
grep -q "file format $format" <<<"$headers" || problem "it is not a $bits-bit DLL"

wanted=$(printf '%s\n' DllCanUnloadNow DllGetClassObject DllInstall DllRegisterServer DllUnregisterServer)
exports=$(sed -n '/^\[Ordinal\/Name Pointer\]/,/^$/s/^\t\[ *[0-9]*\] \(.*\)$/\1/p' <<<"$headers" |
    sed -E 's/^\+base\[ *[0-9]+\] +[0-9a-f]+ +//' | LC_ALL=C sort)
[ "$exports" = "$wanted" ] || problem "it exports"$'\n'"$exports"$'\n'"instead of"$'\n'"$wanted"

# Only what every Windows since version 7 has itself.
system=' advapi32 comctl32 comdlg32 dwmapi gdi32 imm32 kernel32 msimg32 msvcrt ole32 oleacc oleaut32 shell32 shlwapi
    user32 uxtheme version '
while read -r import; do
    name=${import%.dll}
    [[ $system == *[[:space:]]"$name"[[:space:]]* ]] || problem "it needs $import, which is no part of the system"
done < <(sed -n 's/^\tDLL Name: //p' <<<"$headers" | tr '[:upper:]' '[:lower:]')

flags='DYNAMIC_BASE NX_COMPAT'
[ "$bits" = 32 ] || flags+=' HIGH_ENTROPY_VA'
for flag in $flags; do
    grep -q "$flag" <<<"$headers" || problem "it is built without $flag"
done
for section in $(objdump -h "$dll" | awk '{ print $2 }' | grep '^\.debug' || true); do
    problem "it carries debug information ($section)"
done
# Who calls it has it linked.
linked=$(llvm-pdbutil dump --modules "${dll%.dll}.pdb")
grep -q 'libssp\.a' <<<"$linked" || problem "it is built without the stack protector"
size=$(stat -c %s "$dll")
[ "$size" -le $((4 * 1024 * 1024)) ] || problem "it has grown to $size bytes"
[ "$problems" -eq 0 ]
