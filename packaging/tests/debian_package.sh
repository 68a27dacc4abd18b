#!/bin/sh
# debian_package.sh CPACK BUILD VERSION APPSTREAMCLI REMARKS
# The Debian packages: their fields, their owners, the checksums of what they hold, that the
# umask has no say in it, that the tool needs no display's libraries, and that the desktop entry
# and the metainfo fit together.
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
version=$3
appstreamcli=$4
remarks=$5
architecture=$(dpkg --print-architecture)
test "$(cd "$work/022" && echo *.deb)" = \
    "orravane-report_$version-1_$architecture.deb orravane_$version-1_$architecture.deb" ||
    fail "the packages have other names: $(ls "$work/022")"
# Another umask, a moment later: the same bytes.
pack 077
for package in "$work"/022/*.deb; do
    cmp "$package" "$work/077/${package##*/}"
done

field() { dpkg-deb -f "$package" "$1"; }
dependencies() { field Depends | tr ',' '\n' | sed 's/^ *//; s/[ (].*//'; }
depends_on() { # with the ending of Debian 13's libraries for 64-bit times, or without
    dependencies | grep -qx "$1\(t64\)\{0,1\}" || fail "no dependency on $1"
}

# check NAME: what both have to be; leaves what is in the package in $data.
check() {
    package=$work/022/$1_$version-1_$architecture.deb
    dpkg-deb -I "$package"
    test "$(field Package)" = "$1"
    test "$(field Version)" = "$version-1"
    test "$(field Maintainer)" = "Orravane maintainers <maintainers@orravane.example>"
    test "$(field Section)" = misc
    test "$(field Installed-Size)" -gt 0
    # The lines behind the synopsis are indented, and a paragraph ends with a lone dot.
    field Description | sed 1d | grep -v '^ ' && fail "a line of the description is not indented"
    field Description | grep -qx ' \.' || fail "the description is one paragraph"

    dpkg-deb -c "$package" >"$work/list"
    awk '$2 != "root/root"' "$work/list" | grep . && fail "not owned by root"
    awk '$6 !~ /^\.\/(usr\/.*)?$/' "$work/list" | grep . && fail "outside /usr"
    awk '/^d/ && $1 != "drwxr-xr-x"' "$work/list" | grep . && fail "a folder that not all can enter"

    data=$work/$1
    mkdir "$data" "$data.control"
    dpkg-deb -x "$package" "$data"
    dpkg-deb -e "$package" "$data.control"
    (cd "$data" && md5sum --quiet -c "$data.control/md5sums")
    test "$(wc -l <"$data.control/md5sums")" -eq "$(find "$data" -type f | wc -l)"
    for file in "doc/$1/copyright" "doc/$1/changelog.Debian.gz" "lintian/overrides/$1" \
        "man/man1/$1.1.gz"; do
        test -s "$data/usr/share/$file" || fail "$file is missing"
    done
    test -x "$data/usr/bin/$1" || fail "the program is missing"
}

check orravane-report
for library in libc6 libcsv3 libqt6core6 zlib1g; do
    depends_on "$library"
done
dependencies | grep -E 'gui|widgets|cups|x11|xcb|fonts' && fail "it needs what a display needs"
for file in bash-completion/completions/orravane-report zsh/vendor-completions/_orravane-report \
    fish/vendor_completions.d/orravane-report.fish doc/orravane-report/examples/people.csv; do
    test -s "$data/usr/share/$file" || fail "$file is missing"
done
test ! -e "$data/usr/share/zsh/site-functions" || fail "completion for zsh twice"
tool=$data
"$tool/usr/bin/orravane-report" --batch "$tool/usr/share/doc/orravane-report/examples/people.csv" \
    --numbers >"$work/numbers" || fail "the sample is not read"
test "$(wc -l <"$work/numbers")" -eq 3

check orravane
for library in libc6 libcups2 libqt6core6 libqt6gui6 libqt6widgets6; do
    depends_on "$library"
done
depends_on fonts-dejavu-core
test -s "$data/usr/share/doc/orravane/user-guide.md" || fail "the user guide is missing"
sed -n 's/.*](\(pictures[^)]*\)).*/\1/p' "$data/usr/share/doc/orravane/user-guide.md" | while read -r picture; do
    test -s "$data/usr/share/doc/orravane/$picture" || fail "$picture is missing"
done
# No file is in both. The metainfo is about both programs.
(cd "$tool" && find . -type f) | while read -r file; do
    test ! -e "$data/$file" || fail "$file is in both"
    mkdir -p "$data/${file%/*}"
    cp "$tool/$file" "$data/$file"
done
"$appstreamcli" validate-tree --no-net --strict --override="$remarks" "$data"
