#!/usr/bin/env bash
# Builds the benchmarks in build/qtN-release and runs them; see docs/performance.md. Ends with 1 if a goal is missed.
# Results are meaningful only on an idle machine, so CI runs only a short part.
#   scripts/bench.sh [6|5] [OPTION...]   with options of Google Benchmark, such as --benchmark_filter='^lines/'
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

major=6
case "${1:-}" in
    6 | 5)
        major=$1
        shift
        ;;
esac
# shellcheck disable=SC2046
install_packages $(build_packages "$major") libbenchmark-dev
cmake --preset "qt$major-release" >/dev/null
cmake --build --preset "qt$major-release" --target zudunmaf_bench
"build/qt$major-release/bench/zudunmaf_bench" "$@"
