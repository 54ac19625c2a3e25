#!/usr/bin/env bash
# Builds the Debian packages for one version of Qt in build/qtN-release/packages and checks them with lintian. An error or
# warning is a failure unless packaging/overrides lists it with a reason. --try installs the packages on this machine, runs
# the demo and removes them; it needs root or sudo.
#   scripts/packages-deb.sh [6|5] [--try]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

major=6
try=
for argument in "$@"; do
    case "$argument" in
        6 | 5) major=$argument ;;
        --try) try=yes ;;
        *)
            echo "usage: scripts/packages-deb.sh [6|5] [--try]" >&2
            exit 2
            ;;
    esac
done

# shellcheck disable=SC2046
install_packages $(build_packages "$major") libbenchmark-dev dpkg-dev file fakeroot lintian
tree="build/qt$major-release"
rm -rf "$tree/packages"
cmake --preset "qt$major-release" >/dev/null
cmake --build --preset "qt$major-release" --target package
packages=("$tree"/packages/*.deb)

echo "== lintian"
as_user=()
[ "$(id -u)" -ne 0 ] || as_user=(--allow-root)
lintian "${as_user[@]}" --tag-display-limit 0 --fail-on error,warning "${packages[@]}"

[ -n "$try" ] || exit 0
echo "== try"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "--try installs packages and needs root" >&2; exit 1; }
    as_root=(sudo)
fi
mapfile -t names < <(for package in "${packages[@]}"; do dpkg-deb --field "$package" Package; done)
conditions=$(mktemp)
trap '"${as_root[@]}" dpkg --purge "${names[@]}" >/dev/null; rm -f "$conditions"' EXIT
echo "Installing${as_root:+ with sudo}, and removing again: ${names[*]}"
"${as_root[@]}" dpkg --install "${packages[@]}" >/dev/null
echo '5 <= width <= 9' >"$conditions"
QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 zudunmaf-demo filter --accept --start "$conditions" | diff "$conditions" -
pkg-config --print-errors --exists "zudunmaf-standins"
