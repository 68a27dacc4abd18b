#!/bin/sh
# pack.sh BUILD [FOLDER]
# Makes the Debian packages of what is built in BUILD, and puts them into FOLDER or into BUILD
# itself. The same files make the same bytes, whatever the clock and the umask are.
set -eu
umask 022
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l "$(dirname "$0")/debian/changelog" -S Timestamp)
export SOURCE_DATE_EPOCH
exec "${CPACK:-cpack}" -G DEB --config "$1/CPackConfig.cmake" -B "${2:-$1}"
