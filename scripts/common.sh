# Shared by the project's scripts; sourced, never run.
# shellcheck shell=bash

brx_top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
brx_build=$brx_top/build
brx_logs=$brx_build/logs
# What is large, slow to make and the same for every checkout.
brx_cache=${XDG_CACHE_HOME:-$HOME/.cache}/brxopcdlgs6

say() { printf '%s\n' "$*"; }
warn() { printf '%s\n' "$*" >&2; }
die() {
    warn "$(basename "$0"): $*"
    exit 1
}
have() { command -v "$1" >/dev/null 2>&1; }
is_root() { [ "$(id -u)" -eq 0 ]; }

# The product, below the build folder of a Windows preset.
brx_dll=src/dll/brxOpcDlgs6.dll

# The version, from the one place that says it.
project_version() { sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' "$brx_top/CMakeLists.txt"; }

# build PRESET [TARGET..]: configures and builds. Builds of the same preset wait for each other.
build() {
    local preset=$1
    shift
    mkdir -p "$brx_build"
    (
        flock 9
        cd "$brx_top" || exit
        cmake --preset "$preset" 9>&- || exit
        cmake --build --preset "$preset" -j "${BRX_JOBS:-$(nproc)}" ${@:+--target "$@"} -- -k 0 9>&-
    ) 9>"$brx_build/$preset.lock"
}
