#!/bin/sh
# debian_package.sh CPACK BUILD VERSION APPSTREAMCLI REMARKS
# The Debian package: its fields, its owners, the checksums of what it holds, that the umask
# has no say in it, and that the desktop entry and the metainfo in it fit together.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "$1"
    exit 1
}

pack() { # UMASK: packs what is built, into a folder of that name
    mkdir "$work/$1"
    (umask "$1" && CPACK=$cpack "$here/../pack.sh" "$build" "$work/$1") >"$work/log" 2>&1 ||
        fail "$(cat "$work/log")"
}
here=$(dirname "$0")
cpack=$1
build=$2
pack 022
package=$work/022/orravane_$3-1_$(dpkg --print-architecture).deb
test -f "$package" || fail "the package has another name: $(ls "$work/022")"
# Another umask, a moment later: the same bytes.
pack 077
cmp "$package" "$work/077/${package##*/}"
dpkg-deb -I "$package"

field() { dpkg-deb -f "$package" "$1"; }
depends_on() { # with the ending of Debian 13's libraries for 64-bit times, or without
    field Depends | tr ',' '\n' | sed 's/^ *//; s/[ (].*//' | grep -qx "$1\(t64\)\{0,1\}" ||
        fail "no dependency on $1"
}
test "$(field Package)" = orravane
test "$(field Version)" = "$3-1"
test "$(field Maintainer)" = "Orravane maintainers <maintainers@orravane.example>"
test "$(field Section)" = misc
test "$(field Installed-Size)" -gt 0
for library in libc6 libcsv3 libcups2 libqt6core6 libqt6gui6 libqt6svg6 libqt6widgets6 \
    zlib1g; do
    depends_on "$library"
done
depends_on fonts-dejavu-core
# The lines behind the synopsis are indented, and a paragraph ends with a lone dot.
field Description | sed 1d | grep -v '^ ' && fail "a line of the description is not indented"
field Description | grep -qx ' \.' || fail "the description is one paragraph"

dpkg-deb -c "$package" >"$work/list"
awk '$2 != "root/root"' "$work/list" | grep . && fail "not owned by root"
awk '$6 !~ /^\.\/(usr\/.*)?$/' "$work/list" | grep . && fail "outside /usr"
awk '/^d/ && $1 != "drwxr-xr-x"' "$work/list" | grep . && fail "a folder that not all can enter"

mkdir "$work/data" "$work/control"
dpkg-deb -x "$package" "$work/data"
dpkg-deb -e "$package" "$work/control"
(cd "$work/data" && md5sum --quiet -c "$work/control/md5sums")
test "$(wc -l <"$work/control/md5sums")" -eq "$(find "$work/data" -type f | wc -l)"

for file in copyright changelog.Debian.gz; do
    test -s "$work/data/usr/share/doc/orravane/$file" || fail "$file is missing"
done
for file in bash-completion/completions/orravane-report zsh/vendor-completions/_orravane-report \
    fish/vendor_completions.d/orravane-report.fish; do
    test -s "$work/data/usr/share/$file" || fail "$file is missing"
done
test ! -e "$work/data/usr/share/zsh/site-functions" || fail "completion for zsh twice"
"$4" validate-tree --no-net --strict --override="$5" "$work/data"
