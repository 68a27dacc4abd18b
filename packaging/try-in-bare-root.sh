#!/bin/bash
# try-in-bare-root.sh FOLDER [MIRROR]
# Tries the Debian packages that lie in FOLDER in a bare Debian that has nothing of the build machine:
# installs them with their dependencies, the tool's first and alone, runs all three programs as an
# ordinary user, takes pictures of the windows, removes the packages and looks for what they left.
# The settings in the user's home stay, as with every package; they are listed and not counted.
#
# Runs as root and needs debootstrap. What may be set in the environment:
#   SUITE    bookworm, the default, or trixie
#   MIRROR   the Debian mirror, http://deb.debian.org/debian by default
#   ROOT     the folder of the bare system; by default a temporary one, which is removed at
#            the end. A folder that is given has to be missing or empty, and it stays.
#   PICTURES where the pictures of the window go, build/package-pictures by default
set -euo pipefail

folder=$(realpath "${1:?which folder?}")
mirror=${2:-${MIRROR:-http://deb.debian.org/debian}}
pictures=${PICTURES:-$(dirname "$0")/../build/package-pictures}
mkdir -p "$pictures"
pictures=$(realpath "$pictures")
kept=${ROOT:-}
root=$(realpath -m "${ROOT:-$(mktemp -d)}")

. "$(dirname "$0")/bare-root.sh"

install() { in_root apt-get -qq -y --no-install-recommends install "$@" >/dev/null; }
files() { (cd "$root" && find . -xdev \( -path ./proc -o -path ./dev -o -path ./tmp \) -prune -o -print | sort); }

suite=${SUITE:-bookworm}
step "A bare $suite from $mirror"
enter_root "$suite" "$mirror"
files >"$root/tmp/files-before"

step "Install the tool, with what it depends on and nothing it only recommends"
for package in orravane-report orravane; do
    cp "$folder/${package}_"*.deb "$root/tmp/$package.deb"
    chmod 644 "$root/tmp/$package.deb"
done
install /tmp/orravane-report.deb
echo "$(in_root dpkg-query -W | wc -l) packages in the system"
if in_root dpkg-query -W | grep -E 'libqt6(gui|widgets)|libx11|libxcb'; then
    fail "the tool brings libraries of a display"
fi
as_user orravane-report --batch /usr/share/doc/orravane-report/examples/people.csv --numbers -f csv

step "Install the window"
install /tmp/orravane.deb
for package in orravane-report orravane; do
    in_root dpkg -s $package | grep -E '^(Status|Version):'
    in_root dpkg -V $package
    in_root dpkg -L $package >>"$root/tmp/orravane.files"
done
echo "$(in_root dpkg-query -W | wc -l) packages in the system"

step "Every library is there, those of the plugin for the display too"
plugins="/usr/lib/*/qt6/plugins"
in_root sh -c "ldd /usr/bin/orravane /usr/bin/orravane-document /usr/bin/orravane-report \
    $plugins/platforms/libqxcb.so" \
    >"$root/tmp/libraries" || fail "ldd: $(cat "$root/tmp/libraries")"
if grep 'not found' "$root/tmp/libraries"; then
    fail "libraries are missing"
fi
in_root fc-match 'Verdana:family=DejaVu Sans'

step "orravane-report"
as_user orravane-report --version
as_user orravane-report --first Ada --last Moreau --month May --day 7 --year 1984 \
    --today 2027-01-01 --topic 'Life Path Number' | head -n 1 | tee "$root/tmp/heading"
grep -qx 'Your Life Path Number is: 7' "$root/tmp/heading" # 7, 5 and 4 (1984: 22) are 16
printf '%s\n' '{"first":"Ada","last":"Moreau","month":5,"day":7,"year":1984}' '{}' \
    >"$root/tmp/people"
code=0
as_user sh -c 'orravane-report --batch /tmp/people 2>/dev/null >reports.jsonl' || code=$?
[ "$code" -eq 1 ] || fail "a batch with a wrong line ends with $code"
[ "$(wc -l <"$root/home/reader/reports.jsonl")" -eq 2 ] || fail "two people did not give two lines"
rm "$root/home/reader/reports.jsonl"

step "orravane in a window"
install xvfb xauth xdotool imagemagick x11-utils man-db
cat >"$root/tmp/window.sh" <<'WINDOW'
# Runs on a display of its own. Fills the input page as a user does and closes the window.
set -eu
export XDG_RUNTIME_DIR="$HOME/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
orravane 2>/tmp/pictures/orravane.log &
program=$!
window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Orravane v1\.0$' | head -n 1)
xprop -id "$window" WM_CLASS
xdotool windowfocus --sync "$window"
import -window root /tmp/pictures/input-page.png
xdotool type --delay 50 ada
xdotool key Tab Tab
xdotool type --delay 50 moreau
xdotool key alt+p
# The report is on a light page; wait until its lower part shows.
for _ in $(seq 100); do
    import -window root /tmp/pictures/report-page.png
    eval "$(xdotool getwindowgeometry --shell "$window")"
    pixel=$(convert /tmp/pictures/report-page.png \
        -format "%[hex:p{$((X + 460)),$((Y + 370))}]" info:)
    [ "$pixel" = FDFBFF ] && break
    sleep 0.1
done
[ "$pixel" = FDFBFF ] || { echo "the report page did not appear: $pixel"; exit 1; }
xdotool key alt+f
xdotool key x
wait $program

orravane-document 2>>/tmp/pictures/orravane.log &
program=$!
window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Orravane Document$' | head -n 1)
xdotool windowfocus --sync "$window"
import -window root /tmp/pictures/document-page.png
kill $program
WINDOW
mkdir -m 777 "$root/tmp/pictures"
as_user timeout 300 xvfb-run -a -s '-screen 0 800x600x24' sh /tmp/window.sh ||
    fail "the window: $(cat "$root/tmp/pictures/orravane.log")"
cp "$root"/tmp/pictures/*.png "$pictures"
cat "$root/tmp/pictures/orravane.log"
for page in input report document; do
    colours=$(in_root identify -format '%k' "/tmp/pictures/$page-page.png")
    echo "$pictures/$page-page.png: $colours colours"
    [ "$colours" -gt 200 ] || fail "the picture is nearly empty"
done
echo "Files of the user's that stay:"
(cd "$root/home/reader" && find . -newer "$root/tmp/window.sh" -type f)

step "Its pages in man, and in apropos"
in_root mandb -q
for page in orravane orravane-document orravane-report; do
    in_root man -P cat 1 $page | grep -q 'EXIT STATUS' || fail "man $page"
done

step "Remove"
rm -rf "$root/home/reader" "$root/tmp/pictures"
in_root apt-get -qq -y purge orravane orravane-report >/dev/null
while read -r file; do
    if [ -f "$root$file" ]; then
        fail "$file is still there"
    fi
done <"$root/tmp/orravane.files"
if in_root dpkg-query -W | grep orravane; then
    fail "dpkg still knows a package"
fi
in_root apt-get -qq -y autoremove --purge xvfb xauth xdotool imagemagick x11-utils man-db >/dev/null
in_root apt-get -qq clean
files | comm -13 "$root/tmp/files-before" - >"$root/tmp/left"
if grep -i orravane "$root/tmp/left"; then
    fail "the package left something"
fi
echo "Nothing of orravane is left outside the user's home. Left by the packages that it needed:"
grep -vE '^\./(var/(lib/(apt|dpkg)|cache|log)|home)/' "$root/tmp/left" || echo "nothing"

step "All is well"
