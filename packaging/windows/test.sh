#!/bin/sh
# test.sh
# Builds for Windows and tries the result under Wine: the unit tests, the report tool against the
# one of this machine, the window by mouse and keyboard on a private display, and the installer.
# What Wine cannot show is in docs/windows.md. Takes about ten minutes; the first time also
# what build.sh takes. Pictures of the window are left in build/windows/pictures.
set -eu
cd "$(dirname "$0")/../.."
cache=${ORRAVANE_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/orravane-windows}

. packaging/debian-packages.sh
. packaging/windows/toolkit.sh
install_missing $build_packages $windows_packages googletest fonts-dejavu-core \
    cups-daemon imagemagick locales openbox procps python3 wine wine64 x11-utils xclip xdotool xvfb
[ -n "${ORRAVANE_BUILT:-}" ] || packaging/windows/build.sh build/windows/release

# --- GoogleTest, once
if [ ! -f "$toolkit/lib/libgtest.a" ]; then
    cmake -S /usr/src/googletest -B "$cache/build/googletest" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$toolkit" -DBUILD_GMOCK=OFF >/dev/null
    cmake --build "$cache/build/googletest" >/dev/null
    cmake --install "$cache/build/googletest" >/dev/null
fi
configure build/windows/tests -DBUILD_TESTING=ON
cmake --build build/windows/tests --target core_test numbers_test cycles_test derived_test report_test \
    person_test report_output_test file_lock_test report_tool_parts_test worker_processes_test
cmake --preset release >/dev/null
cmake --build --preset release --target orravane-report

exec python3 packaging/windows/try_under_wine.py
