#!/bin/sh
# build.sh [OUTPUT [CMAKE-OPTION...]]
# Builds Orravane for Windows on Debian 12: installs what is missing, builds the toolkit once into
# a cache folder ($ORRAVANE_WINDOWS_CACHE, else ~/.cache/orravane-windows), then the programs, and
# puts an installer and a portable ZIP archive into OUTPUT (build/windows/release). Options are for
# example -DORRAVANE_SITE_HOST=HOST. Debian's sources come from $ORRAVANE_DEBIAN_MIRROR, else from
# Debian itself.
set -eu
cd "$(dirname "$0")/../.."
output=${1:-build/windows/release}
[ $# -eq 0 ] || shift
cache=${ORRAVANE_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/orravane-windows}

. packaging/debian-packages.sh
. packaging/windows/toolkit.sh
install_missing $windows_packages
build_toolkit

stamp=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp)
export SOURCE_DATE_EPOCH="$stamp" # which programs and libraries have in them, and the installer
build=build/windows/product
configure "$build" "$@"
cmake --build "$build" --target orravane orravane-document orravane-report

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
folder=build/windows/orravane-$version
rm -rf "$folder"
mkdir -p "$folder/platforms" "$folder/styles" "$folder/licenses" "$output"
cp "$build/shell/orravane.exe" "$build/document/orravane-document.exe" "$build/tools/orravane-report.exe" "$folder"
cp "$toolkit/plugins/platforms/qwindows.dll" "$folder/platforms"
cp "$toolkit/plugins/styles/qwindowsvistastyle.dll" "$folder/styles"
add_dlls "$folder"
find "$folder" -name '*.exe' -o -name '*.dll' | xargs x86_64-w64-mingw32-strip --strip-unneeded

# --- Documents, and the licences of what is beside the programs
windows_text() { sed 's/$/\r/' "$1" >"$2"; }
windows_text packaging/windows/README.txt "$folder/README.txt"
windows_text docs/user-guide.md "$folder/user-guide.md"
windows_text packaging/windows/LIBRARIES.txt "$folder/licenses/README.txt"
windows_text "$cache/source/qt6-base/debian/copyright" "$folder/licenses/Qt.txt"
windows_text "$cache/source/libcsv/debian/copyright" "$folder/licenses/libcsv.txt"
windows_text /usr/share/doc/libz-mingw-w64/copyright "$folder/licenses/zlib.txt"
windows_text /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright "$folder/licenses/GCC.txt"
windows_text /usr/share/doc/mingw-w64-x86-64-dev/copyright "$folder/licenses/mingw-w64.txt"
windows_text /usr/share/doc/rapidjson-dev/copyright "$folder/licenses/RapidJSON.txt"
for licence in LGPL-3 GPL-3 GPL-2 LGPL-2.1 Apache-2.0; do
    windows_text /usr/share/common-licenses/$licence "$folder/licenses/$licence.txt"
done

# --- The archive and the installer: the same files make the same bytes
find "$folder" -type d -exec chmod 755 {} +
find "$folder" -type f -exec chmod 644 {} +
find "$folder" -exec touch -h -d "@$stamp" {} +
rm -f "$output/orravane-$version-windows.zip"
(cd build/windows && find "orravane-$version" | LC_ALL=C sort | TZ=UTC zip -q -X -9 -@ -) >"$output/orravane-$version-windows.zip"

remove=build/windows/remove.nsh
(
    cd "$folder"
    find . -type f | LC_ALL=C sort | sed 's|^\./||; s|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
    find . -mindepth 1 -type d | LC_ALL=C sort -r | sed 's|^\./||; s|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
) >"$remove"
makensis -V2 -DVERSION="$version" -DSOURCE="$(pwd)/$folder" -DREMOVE="$(pwd)/$remove" \
    -DICON="$(pwd)/$build/packaging/windows/orravane.ico" -DSIZE="$(du -sk "$folder" | cut -f 1)" \
    -DOUTPUT="$(realpath "$output")/orravane-$version-windows-setup.exe" packaging/windows/installer.nsi
ls -l "$output"
