#!/usr/bin/env bash
# The package: what is in it, two builds of it, signing, a crash told by its symbols, its installers and its check kit
# on machines with nothing but Wine.
# On request only: it builds everything twice, once without the compiler cache.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../check-lib.sh"
source "$brx_top/scripts/package/machine.sh"
source "$brx_top/scripts/package/contents.sh"
source "$brx_top/scripts/package/trial.sh"
cd "$brx_top"

work=$brx_build/package-check
version=$(project_version)
out=$brx_build/package
kit=$work/kit/brxOpcDlgs6-$version
source "$brx_top/scripts/package/kit-trial.sh"
source "$brx_top/scripts/package/crash-trial.sh"
# Another folder, with a name of another length.
second=$work/second-tree-elsewhere

second_tree() {
    rm -rf "$second"
    mkdir -p "$second"
    git ls-files --cached --others --exclude-standard | while read -r each; do [ ! -f "$each" ] || say "$each"; done |
        xargs -d '\n' cp -p --parents -t "$second"
}

# The compiler cache would give the second one what the first one made.
build_again() { SOURCE_DATE_EPOCH=$(git log -1 --format=%ct) CCACHE_DISABLE=1 "$second/package"; }

same_bytes() { (cd "$second/build/package" && sha256sum --check --quiet "$out/SHA256SUMS" && cmp SHA256SUMS "$out/SHA256SUMS"); }

signed_package() {
    openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj '/CN=brxOpcDlgs6 check' -addext extendedKeyUsage=codeSigning \
        -keyout "$work/key.pem" -out "$work/certificate.pem" &&
        SOURCE_DATE_EPOCH=$(git log -1 --format=%ct) \
            BRX_SIGN="$brx_top/scripts/package/sign.sh $work/certificate.pem $work/key.pem" "$second/package"
}

is_signed() { osslsigncode verify -CAfile "$work/certificate.pem" -in "$1"; }

# What people download, and each file that the zip has to load or start.
all_signed() {
    local file unsigned=''
    rm -rf "$work/signed"
    unzip -q -d "$work/signed" "$second/build/package/brxOpcDlgs6-$version.zip"
    unzip -q -d "$work/signed" "$second/build/package/brxOpcDlgs6-$version-checks.zip"
    while read -r file; do
        is_signed "$file" || unsigned+="error: not signed: $file"$'\n'
    done < <(find "$work/signed" "$second/build/package" -name '*.dll' -o -name '*.exe' -o -name '*.msi')
    [ -z "$unsigned" ] || { say "$unsigned" && return 1; }
}

rm -rf "$work"
mkdir -p "$work"
need "the package is made" ./package --as-it-is
need "the zip can be unpacked" unzip -q -d "$work/kit" "$out/brxOpcDlgs6-$version.zip"
check_contents

need "the tree can be copied" second_tree
need "the package is made again, elsewhere and from nothing" build_again
rule "both have the same bytes" same_bytes
need "the package is made and signed" signed_package
rule "everything that is loaded or started is signed" all_signed

try_check_kit

trap wine_end EXIT
try_crash 64 x64 x86_64-w64-mingw32
if "$brx_top/scripts/wine32.sh" available; then
    try_crash 32 x86 i686-w64-mingw32
else
    skip "the 32-bit sample that crashes" "there is no 32-bit root here, or it cannot be entered"
fi
need "an earlier version can be packed" make_earlier
try_system 64 x64
if "$brx_top/scripts/wine32.sh" available; then
    try_system 32 x86
else
    skip "the installers of 32-bit Windows" "there is no 32-bit root here, or it cannot be entered"
fi
skip "the 32-bit class in a 64-bit Windows" \
    "Wine has the two in roots of their own here; what is registered for it is compared, nothing is created"
skip "a class that is installed for one user is created by its name" \
    "Wine's CreateObject looks for classes of the machine only"
part_end
