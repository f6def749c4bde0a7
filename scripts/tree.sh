# shellcheck shell=bash
# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT
#
# Small Debian systems in folders, for checks on another release. Sourced after lib.sh, not run.

cache=${XDG_CACHE_HOME:-$HOME/.cache}/vornframe
mkdir -p "$cache"

# The Debian mirror of this system's own apt; VORNFRAME_DEBIAN_MIRROR names another one.
debian_mirror() {
    local mirror=${VORNFRAME_DEBIAN_MIRROR-}
    if [ -z "$mirror" ] && [[ $system == debian-* ]]; then
        # shellcheck disable=SC2016 # apt replaces these, not the shell
        mirror=$(apt-get indextargets --no-release-info --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' \
            'Created-By: Packages' | awk '$1 !~ /-/ && $2 == "main" { print $3; exit }')
    fi
    [ -n "$mirror" ] || die "apt knows no Debian mirror here; set VORNFRAME_DEBIAN_MIRROR to one"
    echo "$mirror"
}

# base_tree SUITE: makes $cache/SUITE-base, a minimal system with git and ca-certificates, unless it is there.
base_tree() {
    local tree=$cache/$1-base mirror
    [ -d "$tree" ] && return
    mirror=$(debian_mirror) || return
    as_root rm -rf "$tree.new"
    quietly as_root debootstrap --variant=minbase --include=ca-certificates,git "$1" "$tree.new" "$mirror" \
        || return
    as_root mv "$tree.new" "$tree"
}

# copy_tree FROM TO: complete or not at all.
copy_tree() {
    as_root rm -rf "$2.new" &&
        as_root cp -a --reflink=auto "$1" "$2.new" &&
        as_root mv "$2.new" "$2"
}

# in_tree TREE COMMAND...: runs it as root inside the tree, where the project lies read-only in /vornframe with
# a build folder that belongs to the tree (emptied when the project lies elsewhere than the last time). All mounts
# belong to this command alone and end with it.
in_tree() {
    mkdir -p "$root/build"
    # shellcheck disable=SC2016 # expanded by the inner shell
    as_root unshare --mount bash -euc '
        tree=$1 root=$2
        shift 2
        [ "$(cat "$tree/build/.source" 2>/dev/null)" = "$root" ] || rm -rf "$tree/build"
        mkdir -p "$tree/vornframe" "$tree/build"
        echo "$root" >"$tree/build/.source"
        mount --bind "$root" "$tree/vornframe"
        mount -o remount,bind,ro "$tree/vornframe"
        mount --bind "$tree/build" "$tree/vornframe/build"
        mount --rbind /proc "$tree/proc"
        mount --rbind /dev "$tree/dev"
        cp -L /etc/resolv.conf "$tree/etc/resolv.conf"
        exec chroot "$tree" env -i HOME=/root TERM="${TERM:-dumb}" PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"
    ' in_tree "$1" "$root" "${@:2}"
}
