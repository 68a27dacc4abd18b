#!/bin/sh
# man_topics.sh ORRAVANE-REPORT MAN-PAGE MAN
# The captions under TOPICS are those of the twenty-two topics, in the order of a reading.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$3" -l -Tascii "$2" | col -b | sed -n '/^TOPICS/,/^INPUT/ s/^       \([A-Z].*\)/\1/p' |
    head -n 22 >"$work/page"
"$1" --first Ada --last Moreau --month May --day 7 --year 1984 --format json |
    grep -o '"caption":"[^"]*"' | cut -d '"' -f 4 >"$work/reading"
test "$(wc -l <"$work/reading")" -eq 22
diff -u "$work/reading" "$work/page"
