# A bare Debian in a folder, for the scripts that try things as on a new machine. Sourced
# by bash with `set -euo pipefail`; the script sets `root`, the folder, and `kept`, which is
# empty where the folder is removed at the end. Needs debootstrap, and root.

step() { printf '\n== %s\n' "$*"; }
fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}
leave_root() {
    for folder in dev/pts dev/shm proc; do
        if mountpoint -q "$root/$folder"; then
            umount "$root/$folder"
        fi
    done
    if [ -z "$kept" ]; then
        rm -rf --one-file-system "$root"
    fi
}
in_root() { # COMMAND...: as root of the bare system
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root \
        DEBIAN_FRONTEND=noninteractive DEBCONF_NOWARNINGS=yes "$@"
}
as_user() { # COMMAND...: as its ordinary user, in the home folder
    chroot --userspec=reader:reader "$root" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 \
        HOME=/home/reader sh -c 'cd && exec "$@"' sh "$@"
}

# enter_root SUITE MIRROR [PACKAGE,...]: makes the system, with an ordinary user "reader".
enter_root() {
    [ "$(id -u)" -eq 0 ] || fail "only root can make a system and enter it"
    [ -z "$(ls -A "$root" 2>/dev/null)" ] || fail "$root is not empty"
    trap leave_root EXIT
    mkdir -p "$root"
    chmod 755 "$root" # an ordinary user walks through it
    log=$(mktemp)
    debootstrap --variant=minbase ${3:+--include="$3"} "$1" "$root" "$2" >"$log" ||
        fail "debootstrap: $(tail "$log")"
    rm "$log"
    mount -t proc proc "$root/proc"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    ln -sf pts/ptmx "$root/dev/ptmx"
    mkdir -p "$root/dev/shm"
    mount -t tmpfs tmpfs "$root/dev/shm"
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d" # starts no services
    chmod +x "$root/usr/sbin/policy-rc.d"
    cat >"$root/etc/apt/apt.conf.d/00try" <<'APT'
Dpkg::Use-Pty "false";
APT::AutoRemove::RecommendsImportant "false";
APT
    in_root useradd --create-home reader
    in_root apt-get -qq update
}
