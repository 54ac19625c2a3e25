#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each of them on its corpus. Ends with a nonzero status at the first crash,
# leak or input that takes more than ten seconds; the input is left in the build directory.
#   scripts/fuzz.sh            100,000 inputs for each target
#   scripts/fuzz.sh 5000000    as many inputs for each target
#   scripts/fuzz.sh 600s       for so many seconds each
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

for corpus in fuzz/corpus/*/; do
    target="$(basename "$corpus")"
    echo "== $target"
    # What is found new goes into the build directory; the corpus of the tree is only read.
    mkdir -p "$build/corpus/$target"
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LSAN_OPTIONS=suppressions=tests/lsan.supp:print_suppressions=0 \
        "$build/fuzz/fuzz_$target" "$limit" -timeout=10 -max_len=4096 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="$build/$target-" "$build/corpus/$target" "$corpus" 2>&1 |
        { grep -vE '^(Seed|INFO|stat::(new|slow|peak))' || true; }
done
