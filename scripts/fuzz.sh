#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each on its corpus. Ends with a nonzero status at the first crash, leak or input
# that takes more than ten seconds. The input is kept in the build directory.
#   scripts/fuzz.sh            100,000 inputs for each fuzzer
#   scripts/fuzz.sh 5000000    the given number of inputs for each fuzzer
#   scripts/fuzz.sh 600s       the given number of seconds for each fuzzer
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages clang libclang-rt-dev llvm $(build_packages 6)

limit="${1:-100000}"
case "$limit" in
    *s) limit="-max_total_time=${limit%s}" ;;
    *) limit="-runs=$limit" ;;
esac

build=build/qt6-fuzz
cmake --preset qt6-fuzz >/dev/null
cmake --build --preset qt6-fuzz

# Two at a time. New corpus files go into the build directory; the corpus of the tree is only read.
fuzz() { # TARGET
    local log="$build/$1.log" status=0
    mkdir -p "$build/corpus/$1"
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LSAN_OPTIONS=suppressions=tests/lsan.supp:print_suppressions=0 \
        "$build/fuzz/fuzz_$1" "$limit" -timeout=10 -max_len=4096 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="$build/$1-" "$build/corpus/$1" "fuzz/corpus/$1" >"$log" 2>&1 || status=$?
    echo "== $1: exit status $status after $SECONDS seconds"
    grep -vE '^(Seed|INFO|stat::(new|slow|peak))' "$log" || true
    return $status
}
export -f fuzz
export limit build
# The two slowest start first.
{ printf '%s\n' definition filter_text && ls fuzz/corpus; } | awk '!seen[$0]++' | xargs -P 2 -I{} bash -euc 'fuzz {}'
