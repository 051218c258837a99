#!/usr/bin/env bash
# A small 32-bit Debian with its own Wine. Beside 64-bit packages a 32-bit Wine often cannot be installed, and a
# 64-bit Wine alone ends 32-bit programs in silence, so the 32-bit DLL is run in a root of its own.
#
#   scripts/wine32.sh make                  makes the root once (root only, some minutes, about 1 GB)
#   scripts/wine32.sh available             exit status 0 when programs can be run in it
#   scripts/wine32.sh run -- COMMAND ARG..  runs a command in it, in the current folder, which must be in the checkout
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

root=$brx_cache/i386
release=bookworm
packages=(wine wine32 fonts-wine fonts-liberation)

complete() { [ "$(cat "$root/.complete" 2>/dev/null)" = "${packages[*]}" ]; }

# Where this machine's own apt gets the release from. Its main part is all that the root needs: the base system comes
# from there too, so versions agree.
archive_uri() {
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        awk -v release="$release" '$2 == release && $3 == "main" && !found { print $1; found = 1 }'
}

enter() { # enter COMMAND.. : chroot with the mounts that end with the process
    exec unshare --mount --propagation private -- "$0" inside "$@"
}

inside() {
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mount --rbind /sys "$root/sys"
    if [ -d /tmp/.X11-unix ]; then
        mkdir -p "$root/tmp/.X11-unix"
        mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    fi
    mkdir -p "$root$brx_top"
    mount --bind "$brx_top" "$root$brx_top"
    local folder=$PWD
    [[ $folder/ == "$brx_top"/* ]] || folder=/
    HOME=/root exec chroot "$root" /usr/bin/env --chdir="$folder" "$@"
}

install_wine() { # install_wine ROOT : with the mounts of an own namespace around it
    unshare --mount --propagation private -- bash -euo pipefail -c '
        mount -t proc proc "$1/proc"
        export DEBIAN_FRONTEND=noninteractive
        shift_root=$1; shift
        chroot "$shift_root" apt-get -qq update
        chroot "$shift_root" apt-get -qq -y --no-install-recommends install "$@"
        chroot "$shift_root" apt-get clean
        rm -rf "$shift_root"/var/lib/apt/lists/*' install_wine "$1" "${packages[@]}"
}

make_root() {
    is_root || die "only root can make the 32-bit root"
    mkdir -p "$brx_cache"
    exec 9>"$brx_cache/i386.lock"
    flock 9
    complete && return 0
    have debootstrap || die "debootstrap is missing; run scripts/setup.sh"

    local mirror work=$brx_cache/i386.new
    mirror=$(archive_uri)
    [ -n "$mirror" ] || die "this machine's apt knows no archive of $release"
    say "making the 32-bit root in $root: some minutes, once"
    rm -rf "$work" "$root"
    local keyring=/usr/share/keyrings/debian-archive-keyring.gpg include=()
    [[ $mirror == https:* ]] && include=(--include=ca-certificates)
    unshare --mount --propagation private -- \
        debootstrap --arch=i386 --variant=minbase --keyring="$keyring" ${include[@]+"${include[@]}"} \
            "$release" "$work" "$mirror" >"$brx_cache/i386.log" 2>&1 ||
        die "debootstrap failed; see $brx_cache/i386.log"

    # Inside, apt reaches the archive the way it does outside: same sources, proxies, timeouts, keys, names.
    printf 'deb [signed-by=%s] %s %s main\n' "$keyring" "$mirror" "$release" >"$work/etc/apt/sources.list"
    cp "$keyring" "$work/usr/share/keyrings/"
    apt-config dump | grep -E '^Acquire::(http|https|Retries|Check-|ForceIPv|Proxy)' \
        >"$work/etc/apt/apt.conf.d/90host" || true
    cp -L /etc/resolv.conf /etc/hosts "$work/etc/"
    if [[ $mirror == https:* ]]; then cp -rL /etc/ssl/certs/. "$work/etc/ssl/certs/"; fi
    # No service is started in there.
    printf '#!/bin/sh\nexit 101\n' >"$work/usr/sbin/policy-rc.d"
    chmod +x "$work/usr/sbin/policy-rc.d"
    install_wine "$work" >>"$brx_cache/i386.log" 2>&1 ||
        die "installing Wine in the 32-bit root failed; see $brx_cache/i386.log"
    say "${packages[*]}" >"$work/.complete"
    mv "$work" "$root"
}

available() { is_root && complete && unshare --mount true 2>/dev/null; }

case ${1:-} in
make) make_root ;;
available) available ;;
run)
    shift
    [ "${1:-}" = -- ] && shift
    [ $# -gt 0 ] || die "run what?"
    available || die "there is no 32-bit root here; make it with: scripts/wine32.sh make"
    enter "$@"
    ;;
inside)
    shift
    inside "$@"
    ;;
*) die "use: make | available | run -- COMMAND ARG.." ;;
esac
