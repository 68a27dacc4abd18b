#!/bin/sh
# make-package.sh [BUILD [CMAKE-OPTION...]]
# Installs what is missing, builds the Debian packages with Debian's own compiler flags and
# says where they lie. Options are for example -DORRAVANE_SITE_HOST=HOST.
# BUILD is the build directory, build/package by default; there the same sources make the same
# bytes, wherever the checkout lies.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/package}
[ $# -eq 0 ] || shift

. packaging/debian-packages.sh
install_missing $build_packages $package_packages

export DEB_BUILD_MAINT_OPTIONS=hardening=+all
CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
export CXXFLAGS LDFLAGS

# Anew, so that no option of an earlier time stays.
cmake --fresh -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr "$@" >/dev/null
cmake --build "$build"
packaging/pack.sh "$build"
