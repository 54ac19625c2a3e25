#!/usr/bin/env bash
# Runs random keys, clicks and host calls on both dialogs under the sanitizers, and opens and closes 2,000 dialogs in one
# process. A failure prints the seed and the shortest stream of events that reproduces it.
#   scripts/monkey.sh                   five seeds of 20,000 events each, and the 2,000 dialogs
#   scripts/monkey.sh SEED [EVENTS]     one seed, by default of 20,000 events
#   scripts/monkey.sh --stream FILE     a printed stream
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages python3 $(build_packages 6)
build() { # build PRESET
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" --target zudunmaf_monkey
}
monkey() { # monkey PRESET OPTION...
    python3 tests/monkey/monkey.py "build/$1/tests/monkey/zudunmaf_monkey" "${@:2}"
}

build qt6-asan
case "${1:-}" in
    '')
        for seed in 1 2 3 4 5; do
            monkey qt6-asan --seed "$seed" --events 20000
        done
        # Without the sanitizers, which distort the figures of memory. Their leak check ran at the end of each seed.
        build qt6-dev
        monkey qt6-dev --soak 2000
        ;;
    --stream) monkey qt6-asan --stream "$2" ;;
    *) monkey qt6-asan --seed "$1" --events "${2:-20000}" ;;
esac
