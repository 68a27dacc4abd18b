#!/bin/sh
# Fails and names the places where a C++ source is not formatted as .clang-format says. To be run
# at the root of the sources.
#
# usage: check-format.sh [CLANG_FORMAT]
set -eu
find . \( -path ./build -o -name '.?*' \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print | sort |
    xargs "${1:-clang-format}" --dry-run -Werror
