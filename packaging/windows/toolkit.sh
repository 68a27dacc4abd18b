# What the toolkit for Windows is built from and how: sourced by build.sh and test.sh, with
# $cache set to where all of it lies.

windows_packages="
    ca-certificates cmake g++ ninja-build dpkg-dev zip
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev nsis icoutils
    qt6-base-dev qt6-base-dev-tools libcsv-dev rapidjson-dev librsvg2-bin optipng
"

toolkit=$cache/toolkit
toolchain=$(pwd)/packaging/windows/toolchain.cmake
host_cmake=/usr/lib/x86_64-linux-gnu/cmake

# Of the toolkit only what the programs use; the tests use its test library.
toolkit_options="
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF
    -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DINPUT_opengl=no -DFEATURE_vulkan=OFF
    -DFEATURE_direct2d=OFF -DFEATURE_directwrite=OFF -DFEATURE_tabletevent=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF
    -DFEATURE_testlib=ON -DFEATURE_pkg_config=OFF -DFEATURE_zstd=OFF -DFEATURE_jpeg=OFF -DFEATURE_gif=OFF
    -DFEATURE_ico=OFF
"

# version_of PACKAGE: the version of Debian's source package that this machine's own one comes from.
version_of() { dpkg-query -W -f '${source:Version}' "$1"; }

# fetch_source SOURCE VERSION: puts Debian's source, patched, into $cache/source/SOURCE. With
# sources and lists of its own, so that the machine's are left as they are and it needs no root.
fetch_source() {
    [ ! -d "$cache/source/$1" ] || return 0
    apt=$cache/apt
    mkdir -p "$apt/lists/partial" "$apt/parts" "$apt/archives/partial" "$cache/source"
    mirror=${ORRAVANE_DEBIAN_MIRROR:-http://deb.debian.org}
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    for suite in "debian $release" "debian $release-updates" "debian-security $release-security"; do
        echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror/$suite main"
    done >"$apt/sources.list"
    own="-o Dir::Etc::sourcelist=$apt/sources.list -o Dir::Etc::sourceparts=$apt/parts
         -o Dir::State::lists=$apt/lists -o Dir::Cache=$apt -o APT::Sandbox::User=root"
    apt-get $own -qq update
    (cd "$apt/archives" && apt-get $own -qq source --download-only "$1=$2")
    rm -rf "$cache/source/$1.part"
    dpkg-source --no-check -x "$apt/archives/$1_${2#*:}.dsc" "$cache/source/$1.part" # apt has checked it
    mv "$cache/source/$1.part" "$cache/source/$1"
}

# build_toolkit: all libraries that the programs need, in $toolkit. Does nothing when they are there.
build_toolkit() {
    mkdir -p "$cache"
    qt_version=$(version_of qt6-base-dev-tools)
    csv_version=$(version_of libcsv-dev)
    made="qt6-base $qt_version libcsv $csv_version $(echo $toolkit_options)"
    [ "$(cat "$toolkit/made" 2>/dev/null)" != "$made" ] || return 0
    # What was begun with other versions or options is of no use. What was interrupted goes on.
    [ "$(cat "$cache/begun" 2>/dev/null)" = "$made" ] || rm -rf "$toolkit" "$cache/source" "$cache/build"
    rm -f "$toolkit/made"
    echo "$made" >"$cache/begun"

    fetch_source qt6-base "$qt_version"
    echo "Building the toolkit into $cache; that takes about an hour on two cores, once." >&2
    [ -f "$cache/build/qt6-base/build.ninja" ] ||
        PKG_CONFIG=false cmake -S "$cache/source/qt6-base" -B "$cache/build/qt6-base" -G Ninja \
            -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=$host_cmake \
            -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX="$toolkit" \
            $toolkit_options >"$cache/configure.log" 2>&1 || { cat "$cache/configure.log" >&2; return 1; }
    ninja -C "$cache/build/qt6-base" >"$cache/build.log" 2>&1 || { tail -n 40 "$cache/build.log" >&2; return 1; }
    cmake --install "$cache/build/qt6-base" >/dev/null

    fetch_source libcsv "$csv_version"
    x86_64-w64-mingw32-gcc-posix -O2 -shared -o "$toolkit/bin/csv.dll" "$cache/source/libcsv/libcsv.c" \
        -Wl,--out-implib,"$toolkit/lib/libcsv.dll.a"
    cp "$cache/source/libcsv/csv.h" "$toolkit/include"
    rm -rf "$toolkit/include/rapidjson"
    cp -r /usr/include/rapidjson "$toolkit/include" # headers alone

    echo "$made" >"$toolkit/made"
}

# configure BUILD [OPTION...]: the project for Windows.
configure() {
    build=$1
    shift
    cmake --fresh -S . -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_FIND_ROOT_PATH="$toolkit" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=$host_cmake -DCMAKE_BUILD_TYPE=Release "$@" >/dev/null
}

# imports FILE: the DLLs that it is linked with.
imports() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: //p'; }

# find_dll NAME: where it lies; nothing for one of the system's.
find_dll() {
    for folder in "$toolkit/bin" /usr/x86_64-w64-mingw32/lib \
        "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
        "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libgcc_s_seh-1.dll)")"; do
        if [ -f "$folder/$1" ]; then
            echo "$folder/$1"
            return
        fi
    done
}

# add_dlls FOLDER: puts beside the programs in FOLDER what they and their plugins are linked with.
add_dlls() {
    again=yes
    while [ -n "$again" ]; do
        again=
        for file in "$1"/*.exe "$1"/*.dll "$1"/*/*.dll; do
            [ -f "$file" ] || continue
            for name in $(imports "$file"); do
                from=$(find_dll "$name")
                if [ -n "$from" ] && [ ! -f "$1/$name" ]; then
                    cp "$from" "$1/"
                    again=yes
                fi
            done
        done
    done
}
