#!/usr/bin/env bash
# Runs one Windows program under Wine, on a screen that nobody sees.
#
#   scripts/wine.sh [--32] [--prefix NAME] [--seconds N] [--dpi N] [--locale de_DE] [--picture FILE.png] PROGRAM ARG..
#
# PROGRAM is a path or the name of one of Wine's. The exit status is the program's, 124 when it was ended after N
# seconds (default 300). NAME is a folder in build/ (default wine64 or wine32). The picture is taken after 3 seconds.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-lib.sh"

bits=64 prefix='' seconds=300 dpi='' locale='' picture=''
while [[ ${1:-} == --* ]]; do
    case $1 in
    --32) bits=32 ;;
    --prefix) shift && prefix=$1 ;;
    --seconds) shift && seconds=$1 ;;
    --dpi) shift && dpi=$1 ;;
    --locale) shift && locale=$1 ;;
    --picture) shift && picture=$1 ;;
    *) die "unknown option $1" ;;
    esac
    shift
done
[ $# -gt 0 ] || die "run what?"
# The next program in this prefix finds the usual scale again.
end() {
    [ -z "$dpi" ] || wine_dpi 96
    wine_end
}
trap end EXIT
wine_begin "$bits" "${prefix:-wine$bits}"
[ -z "$dpi" ] || wine_dpi "$dpi"
[ -z "$locale" ] || wine_locale "$locale"
if [ -n "$picture" ]; then (sleep 3 && wine_picture "$picture") 8>&- & fi
status=0
wine_run "$seconds" "$@" || status=$?
exit $status
