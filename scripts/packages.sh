# Sourced by the other scripts: install_packages NAME... installs those Debian packages that are missing.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What a build of everything with this major version of Qt needs.
build_packages() {
    echo g++ cmake ninja-build gettext binutils pkg-config fonts-dejavu-core libgl-dev
    case "$1" in
        6) echo qt6-base-dev qt6-base-dev-tools qt6-5compat-dev libvulkan-dev qt6-translations-l10n ;;
        5) echo qtbase5-dev qttranslations5-l10n ;;
    esac
}
