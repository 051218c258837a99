# The developer's kit as a folder; sourced by ./package.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$(dirname "${BASH_SOURCE[0]}")/help.sh"

# The name of the side-by-side assembly. It is not the DLL's: Windows would look into that for the manifest.
assembly=brxOpcDlgs6.Assembly

# bits_of ARCHITECTURE, win_of ARCHITECTURE: what others call x64 and x86.
bits_of() { if [ "$1" = x64 ]; then say 64; else say 32; fi; }

# registration ARCHITECTURE: the lines of registration.awk.
registration() {
    awk -v platform="win$(bits_of "$1")" -f "$brx_top/scripts/package/registration.awk" \
        "$brx_top/src/com/idl/brxOpcDlgs6.idl"
}

# page FILE.md FILE.html: a document to read in a browser.
page() {
    local title
    title=$(sed -n 's/^# //p' "$1" | sed -n 1p)
    cmark-gfm --extension table --to html "$1" | sed -E 's/(href="[^":]*)\.md(["#])/\1.html\2/g' |
        awk -v title="$title" -f "$brx_top/scripts/package/page.awk" >"$2"
}

# kit_binaries KIT ARCHITECTURE: the DLL, what registers or describes it, its debug files and
# what reads them.
kit_binaries() {
    local kit=$1 arch=$2 products=$brx_build/windows-$2 architecture=amd64 library
    [ "$arch" = x64 ] || architecture=x86
    mkdir -p "$kit/$arch" "$kit/symbols/$arch"
    cp "$products/$brx_dll" "$kit/$arch/"
    cp "$products/$brx_dll.debug" "$products/${brx_dll%.dll}.pdb" "$products/sample/resolve/brxResolve.exe" \
        "$kit/symbols/$arch/"
    llvm-strip "$kit/symbols/$arch/brxResolve.exe"
    for library in brxOpcDlgs6 brxOpcAuto6 brxDatabase6; do cp "$products/idl/$library.tlb" "$kit/$arch/"; done
    registration "$arch" | awk -F '\t' -v architecture="$architecture" -v name="$assembly" -v file=brxOpcDlgs6.dll \
        -f "$brx_top/scripts/package/assembly.awk" >"$kit/$arch/$assembly.manifest"
}

# Windows' own headers know another ServerInformation. Nothing but its declaration as a class is in their way, and
# CLSID_ServerInformation says as much.
without_clash() {
    awk '/^#ifndef __ServerInformation_FWD_DEFINED__/ { leaving = 1 }
         /^class DECLSPEC_UUID\([^)]*\) ServerInformation;/ { leaving = 2 }
         leaving == 0 { print }
         leaving == 1 && /__ServerInformation_FWD_DEFINED__ \*\// { leaving = 0 }
         leaving == 2 && /^#endif/ { leaving = 0 }'
}

# The compiler writes down where its source lay.
without_folder() { sed -E '1s# from [^ ]*/# from #'; }

kit_interfaces() {
    local kit=$1 made=$brx_build/windows-x64/idl file
    mkdir -p "$kit/idl" "$kit/include"
    cp "$brx_top"/src/com/idl/*.id[lh] "$kit/idl/"
    for file in "$kit"/idl/*.idl; do
        file=$(basename "$file" .idl)
        without_clash <"$made/$file.h" | without_folder >"$kit/include/$file.h"
        without_folder <"$made/${file}_i.c" >"$kit/include/${file}_i.c"
    done
    cp "$made/brxModel.h" "$kit/include/"
    kit_languages "$kit"
}

# What languages with no headers are given: one file for each library, and the base of a host's objects.
kit_languages() {
    local kit=$1 file made=$1/made
    mkdir -p "$made" "$kit/pascal" "$kit/csharp"
    for file in "$kit"/idl/*.idl; do
        file=$(basename "$file" .idl)
        awk -f "$brx_top/scripts/package/idl.awk" "$kit/idl/$file.idl" >"$made/$file"
        in_language pascal unit "$made/$file" >"$kit/pascal/${file}_TLB.pas"
        in_language csharp library "$made/$file" >"$kit/csharp/$file.cs"
    done
    kit_base pascal pas classes bodies
    kit_base csharp cs classes
    cp "$brx_top/packaging/brxValues.pas" "$kit/pascal/"
    rm -r "$made"
}
in_language() { awk -v part="$2" -f "$brx_top/scripts/package/$1.awk" pass=1 "${@:3}" pass=2 "${@:3}"; }
# kit_base LANGUAGE EXTENSION PART..: brxModel with its parts, in what kit_languages has made.
kit_base() {
    local part places=()
    for part in "${@:3}"; do
        in_language "$1" "$part" "$made"/{brxOpcAuto6,brxDatabase6,OPCAutomation} >"$made/$part"
        places+=(-e "/^\/\/ @${part^^}@/{r $made/$part" -e 'd}')
    done
    sed "${places[@]}" "$brx_top/packaging/brxModel.$2" >"$kit/$1/brxModel.$2"
}

kit_host_manifest() {
    local version
    version=$(registration x64 | sed -nE 's/.*\tTypeLib\\[^\]*\\([0-9.]+)\t\t.*/\1/p')
    sed "s/@ASSEMBLY@/$assembly/; s/@ASSEMBLY_VERSION@/$version.0.0/" "$brx_top/packaging/host.exe.manifest"
}

kit_documents() {
    local kit=$1 file
    mkdir -p "$kit/doc"
    for file in "$brx_top"/docs/*.md; do page "$file" "$kit/doc/$(basename "$file" .md).html"; done
    cp -r "$brx_top/docs/pictures" "$kit/doc/"
    page "$brx_top/CHANGELOG.md" "$kit/doc/CHANGELOG.html"
    sed -i 's#href="docs/#href="#g' "$kit/doc/CHANGELOG.html"
}

# The scripts, the programs of the sample host, and whatever else stands in the folder samples.
kit_samples() {
    local kit=$1 arch products
    mkdir -p "$kit/samples/scripts"
    cp "$brx_build/windows-x64/configured/manifests/brxSampleHost.manifest" "$kit/samples/"
    cp "$brx_top"/sample/scripts/*.vbs "$kit/samples/scripts/"
    mkdir -p "$kit/samples/describe"
    cp "$brx_top/sample/describe/main.cpp" "$kit/samples/describe/"
    for arch in x64 x86; do
        products=$brx_build/windows-$arch
        mkdir -p "$kit/samples/$arch"
        cp "$products/$brx_dll" "$products/sample/objects/brxSample.dll" "$products/sample/window/brxSampleHost.exe" \
            "$products/sample/server/brxSampleServer.exe" "$products/sample/describe/brxDescribe.exe" \
            "$kit/samples/$arch/"
        llvm-strip "$kit/samples/$arch/"*.exe
    done
    cp -r "$brx_top/samples/." "$kit/samples/"
    # Visual Basic takes a class for a module when its lines end otherwise.
    sed -i 's/$/\r/' "$kit/samples/vba/"*.{bas,cls}
}

# make_kit FOLDER
make_kit() {
    local kit=$1 arch
    rm -rf "$kit"
    mkdir -p "$kit"
    for arch in x64 x86; do kit_binaries "$kit" "$arch"; done
    kit_interfaces "$kit"
    kit_documents "$kit"
    kit_samples "$kit"
    make_help "$kit/brxOpcDlgs6.chm" "$(dirname "$kit")/help"
    page "$brx_top/packaging/README.md" "$kit/README.html"
    kit_host_manifest >"$kit/host.exe.manifest"
    cp "$brx_top/LICENSE" "$brx_top/NOTICE" "$kit/"
}
