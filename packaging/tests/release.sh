#!/bin/sh
# release.sh VERSION METAINFO CHANGELOG
# The newest release in the metainfo and in the Debian changelog is the version built, and
# both give it the same day.
set -eu
newest=$(sed -n '/<release / { s/.*version="\([^"]*\)" date="\([^"]*\)".*/\1 \2/p; q; }' "$2")
logged=$(dpkg-parsechangelog -l "$3" -S Version)
day=$(date -u -d "$(dpkg-parsechangelog -l "$3" -S Date)" +%Y-%m-%d)

echo "version $1; metainfo $newest; changelog $logged of $day"
test "$newest" = "$1 $day"
test "${logged%-*}" = "$1"
