# The Debian packages that building, testing and packaging need, and their installation. Sourced by
# ./run, ./test and the scripts in packaging/.

build_packages="
    ca-certificates cmake g++ ninja-build
    qt6-base-dev libcups2-dev rapidjson-dev libcsv-dev zlib1g-dev
    fonts-dejavu-core gzip librsvg2-bin optipng xdg-utils
"

# dpkg-dev and file find out what the program's package depends on.
package_packages="dpkg-dev file"

# What the pages behind the window's links are made with.
site_packages="appstream libavif-bin libjs-lunr pandoc"

test_packages="
    $package_packages $site_packages clang-format clang-tidy
    g++-mingw-w64-x86-64-posix libgtest-dev
    bash desktop-file-utils fish man-db zsh
    at-spi2-core cups-client cups-daemon dbus-daemon imagemagick libglib2.0-bin
    locales openbox poppler-utils python3 qt6-gtk-platformtheme qt6-wayland
    strace tidy weasyprint weston x11-utils x11-xserver-utils xclip xdotool xvfb
"

# install_missing PACKAGE...: installs those that are not there. Says nothing and takes no
# time when all are.
install_missing() {
    missing=""
    for package in "$@"; do
        case "$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null)" in
        *" ok installed") ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0

    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These Debian packages are missing, and installing them needs root or sudo:$missing" >&2
            return 1
        fi
        as_root="sudo"
    fi
    echo "Installing Debian packages:$missing" >&2
    $as_root apt-get -qq update >&2 &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y install --no-install-recommends $missing >&2
}
