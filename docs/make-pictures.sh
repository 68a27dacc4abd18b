#!/bin/sh
# Takes the pictures of README and user guide from the running program, so that they never
# show anything but the present window. Run it after a change of the window's look:
#
#     ./run --version && docs/make-pictures.sh
#
# Needs xvfb, openbox, xdotool and imagemagick, and the release build.
set -eu
cd "$(dirname "$0")/.."
program=$PWD/build/release/shell/orravane
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

"$program" &
window=$(xdotool search --sync --onlyvisible --name '^Orravane v1.0$' | head -n 1)
xdotool windowactivate --sync "$window"

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

xdotool type --delay 30 "clara"
key Tab
xdotool type --delay 30 "jane"
key Tab
xdotool type --delay 30 "winter"
key Tab M a r
key Tab 2 9
key Tab 1 9 8 5
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

# Three pages of the sample document, where the engine that makes pages is there.
if command -v weasyprint >/dev/null && command -v pdftoppm >/dev/null; then
    weasyprint --quiet docs/sample-report.html "$home/sample.pdf"
    pdftoppm -r 80 -png "$home/sample.pdf" "$home/page"
    montage "$home/page-01.png" "$home/page-05.png" "$home/page-09.png" -tile 3x1 \
        -geometry +12+12 -background '#8a7d97' -strip "$pictures/document.png"
else
    echo "No weasyprint and pdftoppm: docs/pictures/document.png stays as it is." >&2
fi
