#!/bin/bash
# try-in-bare-root.sh FOLDER [MIRROR]
# Tries build.sh as on a new machine: in a bare Debian 12 with nothing but git, without a cache, on
# a clone of the last commit of this checkout. What it builds is left in FOLDER. Takes as long as
# the toolkit does: about an hour on two cores.
#
# Runs as root and needs debootstrap. ROOT in the environment names the folder of the bare system,
# missing or empty, which then stays; by default it is a temporary one.
set -euo pipefail

mkdir -p "${1:?which folder?}"
folder=$(realpath "$1")
mirror=${2:-http://deb.debian.org/debian}
kept=${ROOT:-}
root=$(realpath -m "${ROOT:-$(mktemp -d)}")
. "$(dirname "$0")/../bare-root.sh"
checkout=$(git -C "$(dirname "$0")" rev-parse --show-toplevel)

step "A bare bookworm with git, from $mirror"
enter_root bookworm "$mirror" git,ca-certificates
git clone --quiet "$checkout" "$root/root/orravane"

step "build.sh"
in_root env ORRAVANE_DEBIAN_MIRROR="${mirror%/debian}" \
    sh -c 'cd ~/orravane && packaging/windows/build.sh ~/windows' | tail -n 20

step "build.sh once more, with the toolkit in its cache"
time in_root env ORRAVANE_DEBIAN_MIRROR="${mirror%/debian}" \
    sh -c 'cd ~/orravane && rm -rf build && packaging/windows/build.sh ~/again' | tail -n 3
in_root sh -c 'cd ~/again && cmp *.zip ~/windows/*.zip' || fail "the same sources made another archive"
cp "$root"/root/windows/* "$folder"

step "All is well"
