#!/bin/sh
# release.sh FOLDER [CMAKE-OPTION...]
# Makes everything that a release consists of, from what is committed, and puts it into FOLDER,
# which has to be empty or missing:
#   the two Debian packages, the installer and the ZIP archive for Windows, the sources,
#   the web site, whose update page offers all these files, and SHA256SUMS.
# The same commit makes the same bytes.
# Options are for example -DORRAVANE_SITE_HOST=HOST. WITHOUT=windows in the environment leaves out
# what takes an hour the first time (packaging/windows/build.sh tells more).
set -eu
cd "$(dirname "$0")/.."
mkdir -p "${1:?which folder?}"
folder=$(realpath "$1")
shift
fail() {
    echo "$1" >&2
    exit 1
}
[ -z "$(ls -A "$folder")" ] || fail "$folder is not empty"
[ -z "$(git status --porcelain)" ] || fail "There are changes that are not committed."
umask 022
version=$(sed -n 's/^project(orravane VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

# --- Debian
rm -f build/package/*.deb
packaging/make-package.sh build/package "$@"
cp build/package/*.deb "$folder"

# --- Windows
[ "${WITHOUT:-}" = windows ] || packaging/windows/build.sh "$folder" "$@"

# --- Sources
git archive --prefix="orravane-$version/" HEAD | gzip -9n >"$folder/orravane-$version-source.tar.gz"

# --- The web site, as it lies below the root of its server. With all that was made before.
. packaging/debian-packages.sh
install_missing $build_packages $site_packages
cmake --fresh -S . -B build/site -G Ninja -DCMAKE_BUILD_TYPE=Release "$@" -DORRAVANE_SITE_DOWNLOADS="$folder" >/dev/null
cmake --build build/site --target site
stage=$(mktemp -d)
DESTDIR=$stage cmake --install build/site --component site >/dev/null
tar -C "$stage" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$(git log -1 --format=%ct)" \
    -cf - etc var | gzip -9n >"$folder/orravane-$version-site.tar.gz"
rm -r "$stage"

(cd "$folder" && sha256sum -- * >SHA256SUMS)
cat "$folder/SHA256SUMS"
