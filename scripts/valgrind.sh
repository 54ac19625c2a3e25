#!/usr/bin/env bash
# Runs the test programs, and a short stream of the monkey, under valgrind's memcheck. Fails for use of uninitialised
# values, for reads and writes out of bounds, for lost memory and for failing tests. tests/valgrind.supp lists the
# exceptions with their reasons.
#   scripts/valgrind.sh              all programs
#   scripts/valgrind.sh contract     those whose name contains the word
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages valgrind python3 $(build_packages 6)
build=build/qt6-dev
cmake --preset qt6-dev >/dev/null
cmake --build --preset qt6-dev

export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
# Qt Test ends a function after five minutes, which is too short here.
export QTEST_FUNCTION_TIMEOUT=3600000
# The code that PCRE compiles for a regular expression reads past the end of a text, within its block, on purpose.
export QT_ENABLE_REGEXP_JIT=0
memcheck="valgrind --quiet --error-exitcode=9 --leak-check=full --show-leak-kinds=definite,possible"
memcheck+=" --errors-for-leak-kinds=definite,possible --num-callers=40 --suppressions=$PWD/tests/valgrind.supp"

status=0
mkdir -p "$build/valgrind"
for program in "$build"/tests/{standins,contract,dialogs}/*; do
    name=$(basename "$program")
    if ! [ -f "$program" ] || ! [ -x "$program" ] || [[ $name != *${1:-}* ]]; then
        continue
    fi
    SECONDS=0
    log=$build/valgrind/$name.log
    if $memcheck "$program" >"$log" 2>&1; then
        echo "$name: nothing found, $SECONDS seconds"
    else
        grep -aE '^(==|FAIL|QFATAL)' -A 3 "$log" | head -n 60 || true
        echo "$name: failed, see $log"
        status=1
    fi
done
if [[ monkey == *${1:-}* ]]; then
    python3 tests/monkey/monkey.py "$build/tests/monkey/zudunmaf_monkey" --under "$memcheck" --seed 1 --events 500 ||
        status=1
fi
exit $status
