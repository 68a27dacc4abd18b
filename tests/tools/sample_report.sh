#!/bin/sh
# sample_report.sh ORRAVANE_REPORT
# docs/sample-report.html is what docs/make-sample.sh makes with this program.
set -eu
docs=$(dirname "$0")/../../docs
made=$(mktemp)
trap 'rm -f "$made"' EXIT
"$docs/make-sample.sh" "$1" "$made"
cmp "$made" "$docs/sample-report.html" ||
    { echo "docs/sample-report.html is of another program; run docs/make-sample.sh" >&2; exit 1; }
