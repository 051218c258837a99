# The MSI packages; sourced by ./package.
#
# make_msi STAGED OUT.msi VERSION ARCHITECTURE: of the staged files, for systems of that kind. For all users, or with MSIINSTALLPERUSER=1 for
# one; ADDLOCAL=ALL brings the samples. Identifiers of parts come from their names, so that a part is the same one in
# every version.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/kit.sh"

brx_summary='OPC collection dialogs'

xml_text() { sed 's/&/\&amp;/g; s/</\&lt;/g; s/"/\&quot;/g' <<<"$1"; }

# The name of a part in the tables: what the path says, and what makes it its own.
msi_name() {
    local hash
    hash=$(sha256sum <<<"$1")
    say "$2_${hash:0:12}"
}

# msi_registry SHARED ARCHITECTURE: the values that belong to the DLL's component.
msi_registry() {
    local shared=$1 arch=$2 scope key name text
    registration "$arch" | tr '\t' '\034' | while IFS=$'\034' read -r scope key name text; do
        [ "$scope" = own ] || [ -n "$shared" ] || continue
        text=$(xml_text "$text")
        text=${text//@DLL@/[#$(msi_name "$arch/brxOpcDlgs6.dll" file)]}
        text=${text//@FOLDER@/[$(msi_name "$arch" folder)]}
        say "<RegistryValue Root=\"HKMU\" Key=\"Software\\Classes\\$key\"${name:+ Name=\"$name\"} Type=\"string\" Value=\"$text\"/>"
    done
}

# msi_folder STAGED FOLDER BITS: the components of a folder and of what lies below it.
msi_folder() {
    local staged=$1 folder=$2 system=$3 each path win64
    # The system's bits come last: where all programs of a user see the same classes, as in Wine, its DLL is found.
    for each in $(printf '%s\n' "$staged/$folder"/* | LC_ALL=C sort -r); do
        path=${each#"$staged"/}
        path=${path#./}
        if [ -d "$each" ]; then
            say "<Directory Id=\"$(msi_name "$path" folder)\" Name=\"$(basename "$each")\">"
            msi_folder "$staged" "$path" "$system"
            say "</Directory>"
            continue
        fi
        win64=no
        if [ "$system" = x64 ] && [[ $path != x86/* ]]; then win64=yes; fi
        say "<Component Id=\"$(msi_name "$path" part)\" Guid=\"$(guid "msi $system $path")\" Win64=\"$win64\">"
        say "<File Id=\"$(msi_name "$path" file)\" Name=\"$(basename "$each")\" Source=\"$path\" KeyPath=\"yes\"/>"
        case $path in
        "$system/brxOpcDlgs6.dll") msi_registry shared "$system" ;;
        x86/brxOpcDlgs6.dll) msi_registry '' x86 ;;
        esac
        say "</Component>"
    done
}

msi_features() {
    local part
    say '<Feature Id="Dialogs" Title="Dialogs" Level="1" Absent="disallow">'
    staged_files "$1" dialogs | while read -r part; do say "<ComponentRef Id=\"$(msi_name "$part" part)\"/>"; done
    say '</Feature>'
    say '<Feature Id="Samples" Title="Samples" Level="1000">'
    staged_files "$1" samples | while read -r part; do say "<ComponentRef Id=\"$(msi_name "$part" part)\"/>"; done
    say '</Feature>'
}

# What tells one package of a version from another one.
contents_of() { (cd "$1" && find . -type f | LC_ALL=C sort | xargs -d '\n' sha256sum | sha256sum); }

# msi_source STAGED VERSION SYSTEM
msi_source() {
    local staged=$1 version=$2 system=$3 programs=ProgramFiles64Folder
    [ "$system" = x64 ] || programs=ProgramFilesFolder
    cat <<END
<?xml version="1.0" encoding="utf-8"?>
<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">
<Product Id="$(guid "msi product $system $version")" Name="brxOpcDlgs6" Language="1033" Version="$version"
         Manufacturer="$(xml_text "$(cmake_text BRX_COMPANY)")" UpgradeCode="$(guid "msi upgrades $system")">
<Package Id="*" InstallerVersion="500" Compressed="yes" Description="$brx_summary"
         Manufacturer="$(xml_text "$(cmake_text BRX_COMPANY)")"/>
<MajorUpgrade DowngradeErrorMessage="A newer version is installed."/>
<Media Id="1" Cabinet="files.cab" EmbedCab="yes"/>
<Property Id="ALLUSERS" Value="2"/>
<Directory Id="TARGETDIR" Name="SourceDir">
<Directory Id="$programs">
<Directory Id="INSTALLDIR" Name="brxOpcDlgs6">
END
    msi_folder "$staged" . "$system"
    say '</Directory></Directory></Directory>'
    msi_features "$staged"
    say '</Product></Wix>'
}

# at_rest COMMAND..: while time stands still at the commit's, and with the same addresses, which the order of tables
# follows.
at_rest() {
    local moment
    moment=$(TZ=UTC date --date="@$SOURCE_DATE_EPOCH" '+%Y-%m-%d %H:%M:%S')
    TZ=UTC setarch --addr-no-randomize faketime -f "$moment" "$@"
}

make_msi() {
    local staged=$1 out=$2 version=$3 system=$4 template='x64;1033'
    [ "$system" = x64 ] || template='Intel;1033'
    msi_source "$staged" "$version" "$system" >"$staged.wxs"
    (cd "$staged" && at_rest wixl -a "$system" -o "$out" "$staged.wxs") || return
    # "For all users or for one, as the package is installed": wixl has a number for it that nobody knows.
    at_rest msibuild "$out" -q 'UPDATE `Registry` SET `Root` = -1' || return
    # wixl draws an identifier of the package at random.
    at_rest msibuild "$out" -s "$brx_summary" "$(cmake_text BRX_COMPANY)" "$template" \
        "{$(guid "msi package $system $version $(contents_of "$staged")")}" || return
    sign "$out"
}
