#!/usr/bin/env bash
# Runs the tests under valgrind's memcheck. An error in one of them, or memory that nothing points to at its end,
# fails it. tests/valgrind.supp names what is Qt's and the platform's own.
#   scripts/valgrind.sh           the contract, stand-in and dialog tests
#   scripts/valgrind.sh REGEX     those whose names match
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages valgrind $(build_packages 6)

memcheck=(
    valgrind --quiet --error-exitcode=99 --leak-check=full --errors-for-leak-kinds=definite
    --show-leak-kinds=definite --num-callers=30 "--suppressions=$PWD/tests/valgrind.supp"
)
build=build/qt6-valgrind
# A test whose command is a program of the tree is started by the "emulator".
cmake --preset qt6-dev -B "$build" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="$(IFS=';' && echo "${memcheck[*]}")" >/dev/null
cmake --build "$build"

# Each function takes far longer than Qt Test allows it.
export QTEST_FUNCTION_TIMEOUT=3000000
ctest --test-dir "$build" --output-on-failure -j 2 --timeout 3600 --tests-regex "${1:-^(contract|gen|dml|dialogs)}" \
    --exclude-regex 'xvfb|schema'
