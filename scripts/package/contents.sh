# What is in the developer's kit, for the check part `package`, which has unpacked it in $kit. Sourced.
# shellcheck shell=bash disable=SC2154

source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# Every file of the kit but samples and pictures, whose names change.
kit_files() {
    local arch each
    for arch in x64 x86; do
        for each in brxDatabase6.tlb brxOpcAuto6.tlb brxOpcDlgs6.Assembly.manifest brxOpcDlgs6.dll brxOpcDlgs6.tlb; do
            say "$arch/$each"
        done
        for each in brxOpcDlgs6.dll.debug brxOpcDlgs6.pdb brxResolve.exe; do say "symbols/$arch/$each"; done
    done
    for each in OPCAutomation brxDatabase6 brxError6 brxOpcAuto6 brxOpcDlgs6 hlxER01; do
        printf '%s\n' "idl/$each.idl" "include/$each.h" "include/${each}_i.c" "pascal/${each}_TLB.pas" "csharp/$each.cs"
    done
    for each in {gcc,g++}-mingw-w64-{i686,x86-64}-posix mingw-w64-{i686,x86-64}-dev GPL-3; do
        say "licenses/$each.txt"
    done
    printf '%s\n' sbom.spdx.json idl/OPCAutomation_codes.idh idl/OPCAutomation_groups.idh idl/brxOpcAuto6_configuration.idh \
        idl/reserved.idh include/brxModel.h pascal/brxModel.pas pascal/brxValues.pas csharp/brxModel.cs LICENSE NOTICE README.html brxOpcDlgs6.chm host.exe.manifest doc/CHANGELOG.html
    for each in "$brx_top"/docs/*.md; do say "doc/$(basename "$each" .md).html"; done
}

has_its_files() {
    local found
    found=$(cd "$kit" && find . -type f ! -path './samples/*' ! -path './doc/pictures/*' -printf '%P\n' | LC_ALL=C sort)
    diff <(kit_files | LC_ALL=C sort) - <<<"$found" | sed -n 's/^[<>]/error: &/p' | { ! grep .; }
}

has_samples() {
    local each missing=''
    for each in brxSampleHost.manifest scripts/select-server.vbs scripts/configure.vbs cpp/pick.cpp cpp/configure/model.h pascal/serve.pas pascal/configure/configure.pas csharp/Serve.cs vba/Servers.cls python/serve.py powershell/serve.ps1 {x64,x86}/{brxSample.dll,brxSampleHost.exe,brxSampleServer.exe}; do
        [ -s "$kit/samples/$each" ] || missing+="error: there is no samples/$each"$'\n'
    done
    [ -z "$missing" ] || { say "$missing" && return 1; }
}

sums_agree() { (cd "$brx_build/package" && sha256sum --check --quiet SHA256SUMS && [ "$(wc -l <SHA256SUMS)" -eq "$(find . -type f ! -name SHA256SUMS | wc -l)" ]); }

# links_lead_somewhere FOLDER: links within the pages, the file is there, and has the heading.
links_lead_somewhere() {
    local folder=$1 page link file name dead=''
    while read -r page; do
        while read -r link; do
            file=${link%%#*}
            name=${link#"$file"}
            file=${file:+$(dirname "$page")/$file}
            [ -f "${file:-$page}" ] && { [ -z "$name" ] || grep -q "id=\"${name#?}\"" "${file:-$page}"; } ||
                dead+="error: ${page#"$folder"/} has a dead link: $link"$'\n'
        done < <(grep -oE '(href|src)="[^"]*"' "$page" | sed -E 's/^[a-z]*="(.*)"$/\1/')
    done < <(find "$folder" -name '*.html')
    [ -z "$dead" ] || { say "$dead" && return 1; }
}

# headers_compile COMPILER..: each header before and after Windows' own.
headers_compile() {
    local header failed=''
    for header in "$kit"/include/*.h; do
        header=$(basename "$header")
        printf '#include <windows.h>\n#include <%s>\n' "$header" | "$@" -fsyntax-only -I "$kit/include" - ||
            failed+="error: $header does not compile after windows.h"$'\n'
        printf '#include <%s>\n#include <windows.h>\n' "$header" | "$@" -fsyntax-only -I "$kit/include" - ||
            failed+="error: $header does not compile before windows.h"$'\n'
    done
    [ -z "$failed" ] || { say "$failed" && return 1; }
}

# identifiers_agree COMPILER..: those that the headers name are in the other files, which can be compiled into one.
identifiers_agree() {
    local file id
    {
        for file in "$kit"/include/*_i.c; do say "#include \"$(basename "$file")\""; done
        say 'int main(void) { return 0; }'
    } >"$work/identifiers.c"
    "$@" -I "$kit/include" -o "$work/identifiers.exe" "$work/identifiers.c" || return
    while read -r id; do
        grep -q "$id" "$kit"/include/*_i.c || { say "error: a header says $id, and nothing defines it" && return 1; }
    done < <(sed -nE 's/^#define CLSID_[A-Za-z]+ (CLSID_[A-Za-z0-9_]+)$/\1/p' "$kit"/include/*.h)
}

manifests_are_sound() { xmllint --noout "$kit"/*/*.manifest "$kit/host.exe.manifest"; }

# entry_point ARCHITECTURE: where DllGetClassObject is in the DLL, as it is told without being loaded.
entry_point() {
    local base place
    base=$(llvm-readobj --file-headers "$kit/$1/brxOpcDlgs6.dll" | sed -nE 's/^ *ImageBase: 0x([0-9A-F]+)$/\1/p')
    place=$(llvm-readobj --coff-exports "$kit/$1/brxOpcDlgs6.dll" | sed -nE '/Name: DllGetClassObject/{n;s/^ *RVA: 0x([0-9A-F]+)$/\1/p}')
    printf '0x%x\n' $((0x$base + 0x$place))
}
is_entry_point() { [[ $1 == DllGetClassObject*entry_points.cpp:[1-9]* ]] || { say "error: it says $1" && return 1; }; }

# debug_file_knows TRIPLE ARCHITECTURE, pdb_knows ARCHITECTURE: function and line of an entry point.
debug_file_knows() {
    is_entry_point "$("$1-addr2line" -Cfe "$kit/symbols/$2/brxOpcDlgs6.dll.debug" "$(entry_point "$2")")"
}
pdb_knows() {
    # It is looked for in the current folder.
    is_entry_point "$(cd "$kit/symbols/$1" && llvm-symbolizer --obj="$kit/$1/brxOpcDlgs6.dll" "$(entry_point "$1")")"
}

# Debuggers take a PDB only when the DLL names its GUID and age.
pdb_belongs_to_dll() {
    local named summary has
    named=$(llvm-readobj --coff-debug-directory "$kit/$1/brxOpcDlgs6.dll" |
        sed -nE 's/^ *PDBGUID: .([0-9A-F -]+).$/\1/p; s/^ *PDBAge: //p; s/^ *PDBFileName: //p' | tr -d ' -' | tr '\n' ' ')
    summary=$(llvm-pdbutil dump --summary "$kit/symbols/$1/brxOpcDlgs6.pdb")
    # The first three parts are numbers, which the DLL has with their lowest byte first.
    has=$(sed -nE 's/^ *GUID: .(.{8})-(.{4})-(.{4})-(.{4})-(.{12}).*/\1\2\3 \4\5/p' <<<"$summary" |
        sed -E 's/^(..)(..)(..)(..)(..)(..)(..)(..) /\4\3\2\1\6\5\8\7/')
    has+=" $(sed -nE 's/^ *Age: //p' <<<"$summary") brxOpcDlgs6.pdb "
    [ "$has" = "$named" ] || { say "error: the DLL names $named, the PDB is $has" && return 1; }
}
pdb_is_whole() {
    local listed
    listed=$(llvm-pdbutil dump --files "$kit/symbols/$1/brxOpcDlgs6.pdb" | grep -c 'brxOpcDlgs6.src.*\.cpp') || true
    [ "$listed" -ge 100 ] || { say "error: it has $listed of the component's sources" && return 1; }
    ! strings -n 8 "$kit/symbols/$1/brxOpcDlgs6.pdb" | grep -F -e "$brx_top" -e "$HOME" | sed 's/^/error: it says /' | grep .
}

# Of each file the list of parts has the right sum and what is linked into it; SQLite is in the sample alone.
list_of_parts_is_right() {
    local list=$kit/sbom.spdx.json wrong='' file sum
    jq -e '.spdxVersion == "SPDX-2.3" and (.files | length) == 14' "$list" >/dev/null ||
        wrong+='error: it does not have its 14 files'$'\n'
    while read -r sum file; do
        [ "$(sha256sum <"$kit/$file" | cut -d ' ' -f 1)" = "$sum" ] || wrong+="error: it has another sum of $file"$'\n'
    done < <(jq -r '.files[] | (.checksums[] | select(.algorithm == "SHA256").checksumValue) + " " + .fileName' "$list")
    [ "$(jq -r '.relationships[] | select(.relatedSpdxElement == "SPDXRef-SQLite").spdxElementId' "$list" | tr '\n' ' ')" = \
        "SPDXRef-File-samples-x64-brxSample.dll SPDXRef-File-samples-x86-brxSample.dll " ] ||
        wrong+='error: it does not have SQLite in the sample alone'$'\n'
    for file in x64-brxOpcDlgs6.dll x86-brxOpcDlgs6.dll; do
        [ "$(jq "[.relationships[] | select(.spdxElementId == \"SPDXRef-File-$file\")] | length" "$list")" -eq 3 ] ||
            wrong+="error: $file does not have the three parts of its compiler"$'\n'
    done
    [ -z "$wrong" ] || { say "$wrong" && return 1; }
}

# What CMake installs for those who build themselves, and what CPack packs of that.
cmake_installs() {
    local folder=$work/installed each
    cmake --install "$brx_build/windows-x64" --prefix "$folder" --strip >/dev/null || return
    for each in bin/brxOpcDlgs6.dll bin/brxOpcDlgs6.pdb bin/brxOpcDlgs6.tlb include/brxOpcDlgs6.h idl/brxOpcDlgs6.idl doc/embedding.md LICENSE; do
        [ -s "$folder/$each" ] || { say "error: it does not install $each" && return 1; }
    done
    cpack --config "$brx_build/windows-x64/CPackConfig.cmake" -B "$work/cpack" &&
        unzip -l "$work/cpack/brxOpcDlgs6-$version-"*.zip | grep -q bin/brxOpcDlgs6.dll
}

# The help file opens the right page for each number, as "NUMBER HEADING".
help_has_its_topics() {
    local help=$work/help name page
    rm -rf "$help"
    mkdir -p "$help"
    cp "$kit/brxOpcDlgs6.chm" "$help/"
    (cd "$help" && chmls extractall brxOpcDlgs6.chm pages && chmls extractalias brxOpcDlgs6.chm brxOpcDlgs6 '') >/dev/null 2>&1
    diff - <(
        while IFS='=' read -r name page; do
            say "$name $(sed -nE 's#.*<h1[^>]*>(.*)</h1>.*#\1#p' "$help/pages/$page")"
        done <"$help/brxOpcDlgs6.ali"
    ) <<'TOPICS'
193 Select OPC Server
194 OPC Test Configuration
195 Add OPC Server
196 Set Trigger
197 Select Item
198 Server information
199 Configuration Properties
200 Descriptor Type
201 Descriptor Properties
TOPICS
}

# Contents and index name pages that are there, too.
help_leads_somewhere() {
    local file dead=''
    links_lead_somewhere "$work/help/pages" || return
    while read -r file; do
        [ -s "$work/help/pages/$file" ] || dead+=" $file"
    done < <(sed -nE 's/.*name="Local" value="([^"]*)".*/\1/p' "$work"/help/pages/{contents.hhc,index.hhk})
    [ -z "$dead" ] || { say "error: contents or index name what is not there: $dead" && return 1; }
}

check_contents() {
    local library arch
    library=$(echo /usr/lib/gcc/x86_64-w64-mingw32/*-posix/include/c++)
    rule "the sums agree" sums_agree
    rule "the zip has its files and no others" has_its_files
    rule "the zip has samples" has_samples
    rule "links in the pages lead somewhere" links_lead_somewhere "$kit"
    rule "the help file opens the page of each dialog" help_has_its_topics
    rule "links, contents and index of the help file lead somewhere" help_leads_somewhere
    rule "the list of parts is right" list_of_parts_is_right
    rule "CMake installs, CPack packs" cmake_installs
    rule "the manifests are sound" manifests_are_sound
    rule "gcc takes the headers as C++" headers_compile x86_64-w64-mingw32-g++ -x c++
    rule "gcc takes the headers as C" headers_compile x86_64-w64-mingw32-gcc -x c
    rule "the identifiers are those of the headers" identifiers_agree x86_64-w64-mingw32-gcc
    rule "gcc takes the headers in 32 bits" headers_compile i686-w64-mingw32-g++ -x c++
    rule "clang takes the headers as C" headers_compile clang --target=x86_64-w64-mingw32 -x c
    rule "clang takes the headers as C++" headers_compile clang++ --target=x86_64-w64-mingw32 -x c++ \
        "-stdlib++-isystem$library" "-stdlib++-isystem$library/x86_64-w64-mingw32"
    for arch in x64 x86; do
        rule "the $arch PDB is that of the DLL" pdb_belongs_to_dll "$arch"
        rule "the $arch PDB has the component's sources and nothing of this machine" pdb_is_whole "$arch"
        rule "the $arch PDB knows function and line" pdb_knows "$arch"
    done
    rule "the 64-bit debug file knows function and line" debug_file_knows x86_64-w64-mingw32 x64
    rule "the 32-bit debug file knows function and line" debug_file_knows i686-w64-mingw32 x86
}
