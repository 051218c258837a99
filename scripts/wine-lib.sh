# Windows programs on Linux: a Wine prefix of the project's own, a screen that nobody sees, time limits. Sourced by
# scripts: wine_begin, then wine_run, wine_picture, wine_dpi, wine_locale, wine_path; wine_end at the end (trap
# wine_end EXIT).
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

wine_screen=1280x1024
wine_bits=64
wine_xvfb=''
# How programs are kept on one core; see wine_use_one_core.
wine_core=()
# Wine takes the user's locale from its environment; this is US English.
wine_environment=(LC_ALL=C.UTF-8)

# wine_begin BITS [PREFIX]: makes the prefix where needed and opens a screen. One session at a time uses a prefix: a
# second one waits.
wine_begin() {
    wine_bits=$1
    export WINEPREFIX=$brx_build/${2:-wine$1}
    export WINEDEBUG=${WINEDEBUG:--all}
    # No downloads are offered, and no menus are written into the home folder.
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
    mkdir -p "$brx_build"
    wine_use_one_core
    exec 8>"$WINEPREFIX.lock"
    flock --nonblock 8 || { warn "waiting for $WINEPREFIX.lock" && flock --timeout 1200 8; } ||
        die "$WINEPREFIX is in use"
    wine_open_screen
    wine_make_prefix
}

# The same for a person: the prefix PREFIX, windows on the screen of $DISPLAY.
wine_begin_visible() {
    local display=$DISPLAY
    wine_begin 64 "$1"
    wine_core=()
    wine_close_screen
    export DISPLAY=$display
}

# A program, the screen and Wine's server wait for one another all the time and hardly ever work at once. On one core
# that takes a third of the time, since no sleeping core has to be woken for each question. 64 and 32 bits take
# different ones, so that they can run side by side.
wine_use_one_core() {
    local cores
    cores=$(taskset -pc "$BASHPID" | sed 's/.*: //')
    case $wine_bits in
    64) wine_core=(taskset -c "${cores%%[-,]*}") ;;
    *) wine_core=(taskset -c "${cores##*[-,]}") ;;
    esac
}

wine_end() {
    [ -n "${WINEPREFIX:-}" ] || return 0
    wine_tool 30 wineserver -k || true
    wine_close_screen
    exec 8>&-
    unset WINEPREFIX
}

# wine_run SECONDS PROGRAM ARG..: the program's exit status; 124 when it took too long, and then nothing of it is left.
wine_run() {
    local seconds=$1 program=$2 status=0
    shift 2
    if [[ $program == */* ]]; then program=$(wine_path "$program"); fi
    wine_tool "$seconds" wine "$program" "$@" || status=$?
    if [ $status -eq 137 ]; then status=124; fi
    if [ $status -eq 124 ]; then wine_tool 30 wineserver -k || true; fi
    return $status
}

# The name that Windows programs know a file by.
wine_path() {
    local file
    file=$(realpath -ms -- "$1")
    printf 'Z:%s\n' "${file//\//\\}"
}

# wine_picture FILE.png: what is on the screen.
wine_picture() { import -silent -window root "$1"; }

# wine_dpi N: the scale of the programs that start from now on; 96 is 100 %.
wine_dpi() {
    wine_tool 60 wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    wine_tool 30 wineserver -k || true
}

# wine_locale NAME: the user's locale of the programs that start from now on, de_DE for example.
wine_locale() {
    local compiled=$brx_build/locales/$1.UTF-8
    if [ ! -d "$compiled" ]; then
        mkdir -p "$brx_build/locales"
        localedef -i "$1" -f UTF-8 "$compiled.new" && mv "$compiled.new" "$compiled"
    fi
    wine_environment=("LOCPATH=$brx_build/locales" "LC_ALL=$1.UTF-8")
}

# wine_tool SECONDS COMMAND ARG..: a command of Wine's, in the 32-bit root where that is meant. What it leaves running
# must not keep the lock.
wine_tool() {
    local limit=(timeout --kill-after=10 "$1" "${wine_core[@]}" env "${wine_environment[@]}")
    shift
    if [ "$wine_bits" = 32 ]; then
        "${limit[@]}" "$brx_top/scripts/wine32.sh" run -- "$@" </dev/null 8>&-
    else
        "${limit[@]}" "$@" </dev/null 8>&-
    fi
}

wine_make_prefix() {
    local settings=$WINEPREFIX/brx-settings.reg wanted
    wanted=$(wine_settings)
    [ "$(cat "$settings" 2>/dev/null)" = "$wanted" ] && return 0
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    wine_tool 300 wineboot -i >/dev/null 2>&1 || die "no Wine prefix could be made in $WINEPREFIX"
    # Debian's Wine looks for its own fonts (Tahoma, Marlett, ...) in a folder that it misspells.
    wine_tool 30 wineserver -w || true
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    printf '%s\n' "$wanted" >"$settings.new"
    wine_tool 60 wine regedit /S "$(wine_path "$settings.new")" || die "the settings of $WINEPREFIX were refused"
    wine_tool 60 wineserver -k || true
    mv "$settings.new" "$settings"
}

# A virtual desktop, so that windows have frames without a window manager (and none for a person, who has one);
# a crash ends the program with its call stack on the error output and no dialog.
wine_settings() {
    cat <<END
REGEDIT4

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Arial"="Liberation Sans"

[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"FontSmoothing"="2"
"FontSmoothingType"=dword:00000001
END
    if [[ $WINEPREFIX != *-visible ]]; then
        cat <<END

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer]
"Desktop"="brx"

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]
"brx"="$wine_screen"
END
    fi
}

wine_open_screen() {
    local number_file=$WINEPREFIX.display
    rm -f "$number_file"
    "${wine_core[@]}" Xvfb -displayfd 7 -screen 0 "${wine_screen}x24" -nolisten tcp -noreset 7>"$number_file" >/dev/null 2>&1 8>&- &
    wine_xvfb=$!
    local tries
    for ((tries = 0; tries < 200; ++tries)); do
        if [ -s "$number_file" ]; then
            DISPLAY=:$(<"$number_file")
            export DISPLAY
            return 0
        fi
        kill -0 "$wine_xvfb" 2>/dev/null || break
        sleep 0.1
    done
    die "Xvfb did not start"
}

wine_close_screen() {
    [ -n "$wine_xvfb" ] || return 0
    kill "$wine_xvfb" 2>/dev/null || true
    wait "$wine_xvfb" 2>/dev/null || true
    wine_xvfb=''
    rm -f "$WINEPREFIX.display"
    unset DISPLAY
}
