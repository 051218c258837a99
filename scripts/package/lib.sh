# What the parts of ./package share; sourced by it.
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/../common.sh"

# The time that everything in the package has: of the commit, or SOURCE_DATE_EPOCH where there is one, as in a tree
# without its history.
commit_time() { say "${SOURCE_DATE_EPOCH:-$(git -C "$brx_top" log -1 --format=%ct)}"; }
is_unchanged() { [ ! -e "$brx_top/.git" ] || [ -z "$(git -C "$brx_top" status --porcelain)" ]; }

# normal_times PATH..: what is packed has the time of the commit and the same rights everywhere.
normal_times() {
    chmod -R u=rwX,go=rX "$@"
    find "$@" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

# sign FILE: with BRX_SIGN, where there is one.
sign() {
    [ -n "${BRX_SIGN:-}" ] || return 0
    # The command may have arguments of its own.
    local command
    read -ra command <<<"$BRX_SIGN"
    "${command[@]}" "$1" || die "$1 could not be signed"
}
