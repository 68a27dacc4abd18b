#!/bin/bash
# try-commands-in-bare-root.sh [SUITE] [MIRROR]
# Tries ./run and ./test as on a new machine: in a bare Debian of that SUITE (bookworm by
# default, or trixie) with nothing but git, on a clone of the last commit of this checkout.
#
# Runs as root and needs debootstrap. What may be set in the environment:
#   MIRROR   the Debian mirror, http://deb.debian.org/debian by default
#   ROOT     the folder of the bare system; by default a temporary one, which is removed at
#            the end. A folder that is given has to be missing or empty, and it stays.
#
# What ./test says is left in build/test-in-bare-root.log.
set -euo pipefail

suite=${1:-bookworm}
mirror=${2:-${MIRROR:-http://deb.debian.org/debian}}
kept=${ROOT:-}
root=$(realpath -m "${ROOT:-$(mktemp -d)}")
. "$(dirname "$0")/bare-root.sh"
checkout=$(git -C "$(dirname "$0")" rev-parse --show-toplevel)

step "A bare $suite with git, from $mirror"
enter_root "$suite" "$mirror" git,ca-certificates
git clone --quiet "$checkout" "$root/root/orravane"

step "./run"
in_root sh -c 'cd ~/orravane && ./run' | tail -n 20

step "./test"
mkdir -p "$checkout/build"
in_root sh -c 'cd ~/orravane && ORRAVANE_WERROR=ON ./test' | tee "$checkout/build/test-in-bare-root.log" | tail -n 40

step "A plain build, as any CMake project"
in_root sh -c 'cd ~/orravane && cmake -S . -B /tmp/plain >/dev/null && cmake --build /tmp/plain -j 2' |
    tail -n 1

step "All is well"
