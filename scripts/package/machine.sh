# A machine to install on, for the check part `package`: what is in it before and after. Sourced.
# shellcheck shell=bash disable=SC1003

source "$(dirname "${BASH_SOURCE[0]}")/../wine-lib.sh"

# What the system itself keeps changing; the folder that an NSIS uninstaller worked in, which is gone after one more
# start of the system; and empty keys that every Windows has and Wine makes when they are needed, those among them in
# which Windows Installer keeps its books.
machine_noise='^machine System\\\\CurrentControlSet\\\\(Enum|Control\\\\(Class|DeviceClasses|Video))\\\\'
machine_noise+='|^(machine|user) Software\\\\Wine\\\\|^user Software\\\\Classes'$'\t$'
machine_noise+='|\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\(Run|Uninstall)'$'\t$'
machine_noise+='|\\\\Installer\\\\((Features|Products|UpgradeCodes)|UserData\\\\[^\\]*\\\\(Components|Products))'$'\t$'
machine_noise+='|^file users/[^/]*/Temp/~nsu[0-9]*\.tmp$'

# registry_lines NAME FILE.reg: "NAME key TAB value" for each value of a hive as Wine writes it, and for each key.
registry_lines() {
    awk -v name="$1" '
        /^#|^WINE REGISTRY|^;;|^$/ { next }
        !joined && /^\[/ { key = $0; sub(/\] [0-9]+$/, "", key); sub(/^\[/, "", key); print name " " key "\t"; next }
        { line = joined $0; joined = "" }
        line ~ /\\$/ { joined = substr(line, 1, length(line) - 1); next }
        { print name " " key "\t" line }' "$2"
}

# machine_snapshot FILE: every file and every value of the registry. Ends what runs, since only then all is written.
machine_snapshot() {
    wine_tool 60 wineserver -k || true
    wine_tool 60 wineserver -w || true
    {
        registry_lines machine "$WINEPREFIX/system.reg"
        registry_lines user "$WINEPREFIX/user.reg"
        (cd "$WINEPREFIX/drive_c" && find . ! -path ./windows/Installer -printf 'file %P\n')
    } | { grep -vE "$machine_noise" || true; } | LC_ALL=C sort -u >"$1"
}

# machine_same BEFORE AFTER: nothing came, and no value or file went. An empty key that went was none of anybody's.
machine_same() {
    local came gone
    came=$(LC_ALL=C comm -13 "$1" "$2")
    gone=$(LC_ALL=C comm -23 "$1" "$2" | grep -v $'\t$' || true)
    [ -z "$came$gone" ] || {
        printf 'error: came: %s\n' "$came" | sed -n '1,20p'
        printf 'error: gone: %s\n' "$gone" | sed -n '1,20p'
        return 1
    }
}

# classes_in HIVE FILE: the values below Software\Classes, in small letters, as keys differ in nothing else; wherever
# the DLL lies.
classes_in() {
    awk -v from="$1 Software\\\\\\\\Classes\\\\\\\\" -F '\t' 'index($0, from) == 1 && $2 != "" { print substr($0, length(from) + 1) }' "$2" |
        tr '[:upper:]' '[:lower:]' |
        sed -E 's/"[a-z]:[^"]*brxopcdlgs6\.dll"/"DLL"/; s/^(typelib.*helpdir\t).*/\1FOLDER/'
}
