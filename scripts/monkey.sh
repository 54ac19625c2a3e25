#!/usr/bin/env bash
# Lets random keys, clicks and host calls loose on both dialogs under the sanitizers, and opens and closes 2,000 of
# them in one process. A fault ends it with the seed and the shortest stream of events that shows the fault.
#   scripts/monkey.sh                   five seeds of 20,000 events each, and the 2,000 dialogs
#   scripts/monkey.sh SEED [EVENTS]     one seed, by default of 20,000 events
#   scripts/monkey.sh --stream FILE     a stream that was found
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
        # Without the sanitizers, which leave no figures of memory. Their own leak check is behind each seed.
        build qt6-dev
        monkey qt6-dev --soak 2000
        ;;
    --stream) monkey qt6-asan --stream "$2" ;;
    *) monkey qt6-asan --seed "$1" --events "${2:-20000}" ;;
esac
