#!/usr/bin/env bash
# Builds everything and runs all tests, with Qt 6 and then with Qt 5. Installs what the tests need, so a skipped test is a
# failure.
#   scripts/test.sh              both versions of Qt
#   scripts/test.sh 6            one of them, 6 or 5
#   scripts/test.sh --sanitize   under the address, leak and undefined-behaviour sanitizers
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

kind=dev
majors=()
for argument in "$@"; do
    case "$argument" in
        6 | 5) majors+=("$argument") ;;
        --sanitize) kind=asan ;;
        *)
            echo "usage: scripts/test.sh [6|5] [--sanitize]" >&2
            exit 2
            ;;
    esac
done
[ ${#majors[@]} -gt 0 ] || majors=(6 5)

for major in "${majors[@]}"; do
    # shellcheck disable=SC2046
    install_packages $(build_packages "$major") $(test_packages)
    preset="qt$major-$kind"
    echo "== Qt $major ($kind)"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    log="build/$preset/ctest.log"
    ctest --preset "$preset" --output-log "$log"
    if grep -q '\*\*\*Skipped' "$log"; then
        echo "Tests were skipped: see $log" >&2
        exit 1
    fi
done
