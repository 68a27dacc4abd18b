#!/bin/sh
# installed_files.sh CMAKE BUILD SITE-HOST
# What an installation puts down: these files and no others, their permissions, and that
# they point at each other.
set -eu
umask 022
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "$1"
    exit 1
}

"$1" --install "$2" --prefix "$work/prefix" >/dev/null

cd "$work/prefix"
find . ! -type d -printf '%m %P\n' | sort -k 2 >"$work/found"
sort -k 2 >"$work/expected" <<'FILES'
755 bin/orravane
755 bin/orravane-document
755 bin/orravane-report
644 share/applications/orravane-document.desktop
644 share/applications/orravane.desktop
644 share/bash-completion/completions/orravane-report
644 share/fish/vendor_completions.d/orravane-report.fish
644 share/icons/hicolor/128x128/apps/orravane-document.png
644 share/icons/hicolor/128x128/apps/orravane.png
644 share/icons/hicolor/16x16/apps/orravane-document.png
644 share/icons/hicolor/16x16/apps/orravane.png
644 share/icons/hicolor/22x22/apps/orravane-document.png
644 share/icons/hicolor/22x22/apps/orravane.png
644 share/icons/hicolor/24x24/apps/orravane-document.png
644 share/icons/hicolor/24x24/apps/orravane.png
644 share/icons/hicolor/256x256/apps/orravane-document.png
644 share/icons/hicolor/256x256/apps/orravane.png
644 share/icons/hicolor/32x32/apps/orravane-document.png
644 share/icons/hicolor/32x32/apps/orravane.png
644 share/icons/hicolor/48x48/apps/orravane-document.png
644 share/icons/hicolor/48x48/apps/orravane.png
644 share/icons/hicolor/64x64/apps/orravane-document.png
644 share/icons/hicolor/64x64/apps/orravane.png
644 share/icons/hicolor/scalable/apps/orravane-document.svg
644 share/icons/hicolor/scalable/apps/orravane.svg
644 share/man/man1/orravane-document.1.gz
644 share/man/man1/orravane-report.1.gz
644 share/man/man1/orravane.1.gz
644 share/metainfo/example.orravane.orravane.metainfo.xml
644 share/zsh/site-functions/_orravane-report
FILES
diff -u "$work/expected" "$work/found"
test -z "$(find . -type d ! -perm 755)" || fail "a folder that not all can enter"

# The width and the height of a PNG stand in its bytes 16 to 23.
for icon in share/icons/hicolor/*x*/apps/*.png; do
    size=${icon#share/icons/hicolor/}
    size=${size%%x*}
    found=$(od -An -tu1 -j16 -N8 "$icon" |
        awk '{ print $3 * 256 + $4, $7 * 256 + $8, $1 + $2 + $5 + $6 }')
    test "$found" = "$size $size 0" || fail "$icon measures $found"
done

for entry in share/applications/*; do
    of_entry() { sed -n "s/^$1=//p" "$entry"; }
    test -x "bin/$(of_entry Exec)" || fail "$entry starts nothing"
    test -e "share/icons/hicolor/scalable/apps/$(of_entry Icon).svg" ||
        fail "the icon of $entry is missing"
done

metainfo=share/metainfo/example.orravane.orravane.metainfo.xml
launched=$(sed -n 's|.*<launchable type="desktop-id">\(.*\)</launchable>.*|\1|p' $metainfo)
test -e "share/applications/$launched" || fail "the metainfo names another desktop entry"
for program in orravane orravane-document orravane-report; do
    grep -q "<binary>$program</binary>" $metainfo || fail "the metainfo does not name $program"
done
grep -q "<url type=\"homepage\">https://$3/</url>" $metainfo || fail "another site in the metainfo"

for page in orravane orravane-document orravane-report; do
    gzip -dc "share/man/man1/$page.1.gz" | cmp - "$2/packaging/man/$page.1"
    if grep '@[A-Z_]*@' "$2/packaging/man/$page.1"; then
        fail "a value is missing in $page.1"
    fi
done
