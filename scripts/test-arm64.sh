#!/usr/bin/env bash
# Cross-builds for 64-bit Arm in build/qt6-arm64, with Debian's multiarch Qt 6. Runs the fast tests of the contract, the
# binding, the stand-ins and the dialogs under qemu-user, and compares the binary interface with the baseline. Enables
# arm64 packages in dpkg.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages $(build_packages 6)
command -v dpkg >/dev/null || { echo "Missing: Debian's packages for arm64" >&2; exit 1; }
if ! dpkg --print-foreign-architectures | grep -qx arm64; then
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Enabling packages for arm64${as_root:+ with sudo}: dpkg --add-architecture arm64"
    "${as_root[@]}" dpkg --add-architecture arm64
fi
install_packages g++-aarch64-linux-gnu qemu-user-static gdb-multiarch \
    qt6-base-dev:arm64 qt6-5compat-dev:arm64 libgl-dev:arm64 libvulkan-dev:arm64

cmake --preset qt6-arm64 >/dev/null
cmake --build --preset qt6-arm64
ctest --preset qt6-arm64 -L fast -R '^(contract|binding|gen|dml|dialogs)'
GDB=gdb-multiarch NM=aarch64-linux-gnu-nm scripts/check-abi.sh 6 build/qt6-arm64
