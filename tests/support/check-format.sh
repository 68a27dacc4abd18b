#!/bin/sh
# Fails and names the places where a C++ source is not formatted as .clang-format says.
set -eu
find core numbers report shell tools tests bench packaging -name '*.cpp' -o -name '*.h' | sort |
    xargs clang-format --dry-run -Werror
