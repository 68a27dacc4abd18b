#!/bin/sh
# man_options.sh ORRAVANE-REPORT MAN-PAGE
# The options of --help and those with an entry in the man page are the same.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$1" --help | sed -n 's/^  \(--[a-z-]*\).*/\1/p' | sort >"$work/help"
sed 's/\\-/-/g' "$2" | sed -n '/^\.TP$/ { n; s/^\.[A-Z]* \(--[a-z-]*\).*/\1/p; }' |
    sort >"$work/page"
test -s "$work/help"
diff -u "$work/help" "$work/page"
