#!/bin/sh
# Takes the pictures of README and user guide from the running program, so that they never
# show anything but the present window. Run it after a change of the window's look:
#
#     ./run --version && docs/make-pictures.sh
#
# usage: docs/make-pictures.sh [BUILD]    build/release by default
#
# Needs xvfb, openbox, xdotool, imagemagick, python3, a C compiler and a release build.
set -eu
cd "$(dirname "$0")/.."
build=$PWD/${1:-build/release}
pictures=$PWD/docs/pictures

home=$(mktemp -d)
display_file=$home/display
Xvfb -displayfd 3 -screen 0 1400x1100x24 -nolisten tcp 3>"$display_file" 2>/dev/null &
server=$!
trap 'kill $server 2>/dev/null; wait 2>/dev/null; rm -rf "$home"' EXIT
until [ -s "$display_file" ]; do sleep 0.1; done

DISPLAY=:$(cat "$display_file")
export DISPLAY HOME="$home" XDG_RUNTIME_DIR="$home" LC_ALL=C.UTF-8 QT_SCALE_FACTOR=${SCALE:-1.5}
# Pages that the program opens on the way out lead nowhere.
mkdir "$home/bin"
ln -s /bin/true "$home/bin/xdg-open"
PATH=$home/bin:$PATH
openbox >/dev/null 2>&1 &
until xdotool get_desktop >/dev/null 2>&1; do sleep 0.1; done

# open PROGRAM TITLE: starts a program and gives its window the keyboard.
open() {
    "$1" &
    window=$(xdotool search --sync --onlyvisible --name "^$2\$" | head -n 1)
    xdotool windowactivate --sync "$window"
}

# key KEY...: presses keys, and gives the window a moment to paint.
key() {
    xdotool key --clearmodifiers "$@"
    sleep 0.5
}

# picture NAME: the window with its frame.
picture() {
    sleep 0.5
    import -frame -window "$window" -strip "$pictures/$1.png"
}

# enter FIRST MIDDLE LAST: types the names and picks 29 March 1985.
enter() {
    xdotool type --delay 30 "$1"
    key Tab
    xdotool type --delay 30 "$2"
    key Tab
    xdotool type --delay 30 "$3"
    key Tab M a r
    key Tab 2 9
    key Tab 1 9 8 5
}

# A report depends on the day; tests/e2e/test_pictures.py has the same one.
cc -shared -fPIC -o "$home/moving_clock.so" tests/faults/moving_clock.c
python3 -c 'import datetime, struct, sys, time
day = datetime.datetime(2026, 11, 21, 12)
sys.stdout.buffer.write(struct.pack("@qq", round(day.timestamp() - time.time()), 0))' >"$home/moving-clock"
export MOVING_CLOCK="$home/moving-clock" LD_PRELOAD="$home/moving_clock.so"

open "$build/shell/orravane" 'Orravane v1.0'
enter clara jane winter
picture input

key alt+p
key Down Down Down Down Down Down Return # Life Path Number
picture topic

key End Up Return # Comprehensive Reading
picture report

key End Return # Help
picture help

key alt+f x
wait $! 2>/dev/null || true
unset LD_PRELOAD

open "$build/document/orravane-document" 'Orravane Document'
enter Clara Jane Winter
key Tab N o v
key Tab 2 1
key Tab 2 0 2 6 # the day of the sample document
picture document-window
key ctrl+q
wait $! 2>/dev/null || true

# Three pages of the sample document, where the engine that makes pages is there.
if command -v weasyprint >/dev/null && command -v pdftoppm >/dev/null; then
    weasyprint --quiet docs/sample-report.html "$home/sample.pdf"
    pdftoppm -r 80 -png "$home/sample.pdf" "$home/page"
    montage "$home/page-01.png" "$home/page-05.png" "$home/page-09.png" -tile 3x1 \
        -geometry +12+12 -background '#8a7d97' -strip "$pictures/document.png"
    # One of its drawings, with a margin: whether the frame fits is to be looked at.
    pdftoppm -r 130 -f 5 -l 5 -x 98 -y 612 -W 876 -H 538 -png -singlefile "$home/sample.pdf" "$home/life"
    convert "$home/life.png" -strip "$pictures/document-life.png"
else
    echo "No weasyprint and pdftoppm: the pictures of the document stay as they are." >&2
fi
