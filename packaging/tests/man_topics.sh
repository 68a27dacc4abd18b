#!/bin/sh
# man_topics.sh ORRAVANE-REPORT MAN-PAGE MAN
# The captions under TOPICS are those of the twenty-two topics, in the order of a reading,
# and the Comprehensive Reading has them in the same order.
set -eu
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Without colour codes, which newer versions write and col does not take out.
GROFF_NO_SGR=1 "$3" -l -Tascii "$2" | col -b | sed -n '/^TOPICS/,/^INPUT/ s/^       \([A-Z].*\)/\1/p' |
    head -n 22 >"$work/page"
read_json() {
    "$program" --first Ada --last Moreau --month May --day 7 --year 1984 --today 2027-01-01 \
        --format json "$@"
}
read_json >"$work/json"
grep -o '"caption":"[^"]*"' "$work/json" | cut -d '"' -f 4 >"$work/reading"
test "$(wc -l <"$work/reading")" -eq 22
diff -u "$work/reading" "$work/page"

# Every topic begins with a bold heading; the whole has a title above the first.
headings() { grep -o '"text":"[^"]*","bold":true'; }
headings <"$work/json" >"$work/headings"
test "$(wc -l <"$work/headings")" -eq 22
read_json --topic "Comprehensive Reading" | headings | tail -n +2 >"$work/comprehensive"
diff -u "$work/headings" "$work/comprehensive"
