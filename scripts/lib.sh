# shellcheck shell=bash
# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT
#
# What the scripts share. Sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# A clone elsewhere finds the objects that this one compiled.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

# Qt needs a UTF-8 locale; a minimal system has none set.
if [ "$(locale charmap 2>/dev/null)" != UTF-8 ]; then
    export LC_ALL=C.UTF-8
fi

# --- messages -------------------------------------------------------------------------------------------

bold='' plain=''
if [ -t 1 ]; then
    bold=$'\e[1m' plain=$'\e[0m'
fi

say() { printf '%s%s%s\n' "$bold" "$*" "$plain"; }
warn() { printf '%s\n' "$*" >&2; }
die() { warn "${0##*/}: $*"; exit 1; }

# stage NAME COMMAND...: runs the command and says how long it took; its exit code is the command's.
stage() {
    local name=$1 start=$SECONDS code=0
    shift
    "$@" || code=$?
    if [ "$code" -eq 0 ]; then
        say "$name: $((SECONDS - start)) s"
    else
        say "$name: failed after $((SECONDS - start)) s"
    fi
    return "$code"
}

# quietly COMMAND...: its output is shown only when it fails.
quietly() {
    local output code=0
    output=$("$@" 2>&1 </dev/null) || code=$?
    [ "$code" -eq 0 ] || warn "$output"
    return "$code"
}

# show_usage: prints the comment at the head of the running script, below its licence.
show_usage() { awk 'NR < 5 { next } !/^#/ { exit } { sub(/^# ?/, ""); print }' "$0"; }

# no_arguments "$@": for scripts that take none but -h.
no_arguments() {
    case ${1-} in
    '') ;;
    -h | --help) show_usage; exit ;;
    *) show_usage >&2; exit 2 ;;
    esac
}

# --- packages -------------------------------------------------------------------------------------------

# package_names GROUP: the packages of a group on this system, one place for all names.
package_names() {
    local svg=libqt6svg6 # the plugins that show SVG icons
    [ "$system" = debian-13 ] && svg=qt6-svg-plugins
    case $1 in
    build)
        echo g++ cmake ninja-build ccache pkg-config qt6-base-dev libgl-dev "$svg" fonts-dejavu-core
        echo libbenchmark-dev
        echo strace util-linux mount e2fsprogs # for tests that let the system fail
        echo xvfb openbox xdotool imagemagick # for tests at a screen
        ;;
    format) echo clang-format shellcheck ;;
    tidy) echo clang clang-tidy python3 ;;
    clazy) echo clang clazy python3 ;;
    fuzz) echo clang libclang-rt-dev ;;
    docs) echo doxygen ;;
    tree) echo debootstrap debian-archive-keyring util-linux ;;
    *) die "no such group of packages: $1" ;;
    esac
}

detect_system() {
    system=$(. /etc/os-release 2>/dev/null && echo "${ID:-unknown}-${VERSION_ID:-unknown}")
    case $system in
    debian-12 | debian-13 | ubuntu-24.04) return ;;
    esac
    cat >&2 <<TEXT
This script knows Debian 12, Debian 13 and Ubuntu 24.04, and this is none of them. Please install yourself:
  - a C++17 compiler, CMake 3.22 or newer, Ninja, ccache, pkg-config
  - Qt 6.4 or newer with its headers (Core, Gui, Widgets, Test), Qt's SVG icon plugin, a font
  - Google Benchmark
  - for the tests at a screen: Xvfb, openbox, xdotool, ImageMagick
  - for the checks: clang, clang-format, clang-tidy, clazy, Python 3
Then build and test with:
  cmake --preset dev && cmake --build --preset dev && ctest --preset dev
TEXT
    exit 3
}

# as_root COMMAND...: runs it as root, through sudo when needed.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo -- "$@"
    else
        die "this needs root, and there is no sudo: $*"
    fi
}

# need GROUP...: installs what is missing of these groups, and says so.
need() {
    local group package
    local -a missing=()
    detect_system
    for group in "$@"; do
        for package in $(package_names "$group"); do
            is_installed "$package" || missing+=("$package")
        done
    done
    [ "${#missing[@]}" -eq 0 ] && return
    say "Missing, being installed: ${missing[*]}"
    stage "packages" install_packages "${missing[@]}"
}

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

install_packages() {
    quietly as_root apt-get -q update &&
        quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "$@"
}

# --- build ----------------------------------------------------------------------------------------------

# configure PRESET: when it was not done yet; Ninja repeats it by itself when files changed.
configure() {
    if [ ! "$root/build/$1/build.ninja" -nt "$root/CMakePresets.json" ]; then
        stage "configure $1" quietly cmake -S "$root" --preset "$1"
    fi
}

# lint_setup: the compile commands of clang, and moc's output that the sources include.
lint_setup() {
    configure tidy
    stage moc quietly cmake --build "$root/build/tidy" --target autogen
}
