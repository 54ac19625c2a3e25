#!/usr/bin/env bash
# Compares the binary interface of the built libraries (exported symbols, virtual tables, layouts) with the baseline in
# abi/. Any difference is a failure, since hosts are not recompiled with the library. Builds the libraries first.
#   scripts/check-abi.sh            both versions of Qt, in build/qt6-dev and build/qt5-dev
#   scripts/check-abi.sh --update   writes the baseline; the change must be listed in CHANGELOG.md
#   scripts/check-abi.sh [--update] MAJOR BUILD_DIRECTORY   one version, already built
# GDB and NM in the environment name the tools for another architecture; the baseline is the same.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

update=
if [ "${1:-}" = --update ]; then
    update=yes
    shift
fi
gdb=${GDB:-gdb}
install_packages "$gdb" binutils

describe() { # BUILD_DIRECTORY
    local library
    for library in code/libzudunmaf.so standins/tvx/libzudunmaf_tvx.so; do
        "$gdb" -batch -nx -ex 'set auto-load no' -x scripts/abi_description.py "$(realpath "$1/$library")"
    done
}

status=0
compare() { # MAJOR BUILD_DIRECTORY
    local baseline="abi/qt$1.txt" found
    found=$(describe "$2")
    if [ -n "$update" ]; then
        printf '%s\n' "$found" >"$baseline"
    elif ! diff -u "$baseline" <(printf '%s\n' "$found"); then
        echo "The binary interface for Qt $1 has changed. If that is intended, run scripts/check-abi.sh --update" >&2
        echo "and list the change in CHANGELOG.md." >&2
        status=1
    fi
}

if [ $# -eq 2 ]; then
    compare "$1" "$2"
    exit $status
fi
for major in 6 5; do
    # shellcheck disable=SC2046
    install_packages $(build_packages "$major")
    cmake --preset "qt$major-dev" >/dev/null
    cmake --build --preset "qt$major-dev" --target zudunmaf zudunmaf_tvx
    compare "$major" "build/qt$major-dev"
done
exit $status
