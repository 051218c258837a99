#!/usr/bin/env bash
# Makes a Debian 12 machine ready to build and check the project: what is missing is installed, the rest is left alone.
# Without root it prints the command that root has to run, and fails.
#
#   scripts/setup.sh            everything but the 32-bit root
#   scripts/setup.sh --all      also the 32-bit root (scripts/wine32.sh make; some minutes and about 1 GB, once)
#   scripts/setup.sh --package  also what ./package needs
#   scripts/setup.sh --sqlite   only SQLite for Windows; also on Windows, with MSYS2
#   scripts/setup.sh --check    changes nothing; exit status 0 when nothing is missing
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

packages=(
    g++ cmake ninja-build ccache git ca-certificates
    clang clang-format clang-tidy lld llvm
    mingw-w64 mingw-w64-tools
    libgtest-dev libgmock-dev googletest libsqlite3-dev
    wine wine64 libwine-dev fonts-wine
    fonts-liberation
    xvfb xauth xdotool x11-utils imagemagick
    debootstrap util-linux locales
    shellcheck
)

# Only ./package and its check need these.
packaging=(
    nsis wixl msitools faketime zip unzip cmark-gfm osslsigncode openssl libxml2-utils jq
    fp-compiler fp-units-fcl fp-units-misc fp-utils fpc-source
    mono-mcs libmono-microsoft-csharp4.0-cil
)

# SQLite for Windows: its amalgamation, as the npm package better-sqlite3 carries it. A new version needs new sums:
# scripts/setup.sh fails and prints where the files lie.
sqlite_package=better-sqlite3@13.2.0
sqlite_sums=$brx_top/scripts/sqlite.sha512
sqlite_dir=$brx_cache/sqlite

missing_packages() {
    local package
    for package in "${packages[@]}"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || say "$package"
    done
    # npm comes with Debian's package of that name or with a nodejs package from elsewhere.
    have npm || say npm
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -eq 0 ] && return 0
    local command="apt-get install -y --no-install-recommends ${missing[*]}"
    if ! is_root || [ -n "${check_only:-}" ]; then
        warn "packages are missing; root installs them with:"
        warn "    apt-get update && $command"
        return 1
    fi
    say "installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    mkdir -p "$brx_logs"
    if ! { apt-get -q update && apt-get -q install -y --no-install-recommends "${missing[@]}"; } \
        </dev/null >"$brx_logs/setup.log" 2>&1; then
        tail -n 20 "$brx_logs/setup.log" >&2
        die "apt-get failed: $command"
    fi
}

sqlite_is_right() { (cd "$sqlite_dir" 2>/dev/null && sha512sum --quiet --check "$sqlite_sums" >/dev/null 2>&1); }

fetch_sqlite() {
    sqlite_is_right && return 0
    if [ -n "${check_only:-}" ]; then
        warn "SQLite for Windows is missing in $sqlite_dir"
        return 1
    fi
    say "fetching SQLite for Windows ($sqlite_package)"
    local work
    mkdir -p "$brx_cache"
    work=$(mktemp -d "$brx_cache/sqlite.XXXXXX")
    (
        trap 'rm -rf "$work"' EXIT
        cd "$work"
        npm pack --ignore-scripts --silent "$sqlite_package" >/dev/null 2>npm.log </dev/null || {
            cat npm.log >&2
            die "npm could not fetch $sqlite_package"
        }
        tar xzf ./*.tgz --strip-components=3 package/deps/sqlite3
        sha512sum --quiet --check "$sqlite_sums" >&2 || die "$sqlite_package does not hold the expected SQLite"
        mkdir -p "$sqlite_dir"
        mv sqlite3.c sqlite3.h "$sqlite_dir/"
    )
}

check_only='' with_wine32='' only_sqlite=''
for argument in "$@"; do
    case $argument in
    --all) with_wine32=yes ;;
    --sqlite) only_sqlite=yes ;;
    --package) packages+=("${packaging[@]}") ;;
    --check) check_only=yes ;;
    *) die "use: scripts/setup.sh [--all | --package | --sqlite] [--check]" ;;
    esac
done
[ -n "$only_sqlite" ] || install_packages || exit 1
fetch_sqlite || exit 1
if [ -n "$with_wine32" ]; then "$brx_top/scripts/wine32.sh" make; fi
