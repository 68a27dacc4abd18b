#!/bin/sh
# Makes docs/sample-report.html, a whole document of an invented person, with the tool that was
# built. Run it after a change of the readings or of the document; a test compares.
#
#     ./run --version && docs/make-sample.sh
#
# usage: docs/make-sample.sh [ORRAVANE_REPORT [FILE]]
set -eu
docs=$(dirname "$0")
tool=${1:-$docs/../build/release/tools/orravane-report}
exec "$tool" --first Clara --middle Jane --last Winter --date 1985-03-29 --today 2026-11-21 \
    --format html --output "${2:-$docs/sample-report.html}"
