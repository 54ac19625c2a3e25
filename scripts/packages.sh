# shellcheck shell=bash
# Sourced by the other scripts.
#
# install_packages NAME...: prints the names of the missing Debian packages and installs them. Calls apt-get as root, and
# sudo otherwise. Without apt-get, or without root and sudo, it prints one line with the missing packages, installs nothing
# and ends the script.

# How to find a package without dpkg: a command, or a pkg-config module after "pc:". Unlisted packages are assumed to be
# installed.
package_probe() {
    case "$1" in
        g++) echo c++ ;;
        ninja-build) echo ninja ;;
        gettext) echo msgfmt ;;
        binutils) echo readelf ;;
        xvfb) echo Xvfb ;;
        clang) echo clang++ ;;
        clazy) echo clazy-standalone ;;
        dpkg-dev) echo dpkg-shlibdeps ;;
        qt6-base-dev) echo pc:Qt6Widgets ;;
        qt6-5compat-dev) echo pc:Qt6Core5Compat ;;
        qtbase5-dev) echo pc:Qt5Widgets ;;
        libbenchmark-dev) echo pc:benchmark ;;
        cmake | pkg-config | python3 | git | ccache | clang-format | clang-tidy | doxygen | gdb | shellcheck) echo "$1" ;;
        valgrind | file | fakeroot | lintian) echo "$1" ;;
    esac
}

package_is_missing() {
    local probe
    if command -v dpkg-query >/dev/null; then
        ! dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'
        return
    fi
    probe=$(package_probe "$1")
    case "$probe" in
        '') return 1 ;;
        pc:*) ! pkg-config --exists "${probe#pc:}" 2>/dev/null ;;
        *) ! command -v "$probe" >/dev/null ;;
    esac
}

install_packages() {
    local missing=() as_root=() package
    for package in "$@"; do
        ! package_is_missing "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if ! command -v apt-get >/dev/null; then
        echo "Missing (names of Debian packages): ${missing[*]}" >&2
        exit 1
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing; as root, run: apt-get install --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing${as_root:+ with sudo}: ${missing[*]}"
    if ! { "${as_root[@]}" apt-get update -qq && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; }; then
        echo "Could not install: ${missing[*]}" >&2
        exit 1
    fi
}

# Packages for a full build with this major version of Qt.
build_packages() {
    echo g++ cmake ninja-build gettext binutils pkg-config fonts-dejavu-core libgl-dev
    case "$1" in
        6) echo qt6-base-dev qt6-base-dev-tools qt6-5compat-dev libvulkan-dev qt6-translations-l10n ;;
        5) echo qtbase5-dev qttranslations5-l10n ;;
    esac
}

# Further packages for the tests.
test_packages() {
    echo xvfb python3 python3-jsonschema
}
