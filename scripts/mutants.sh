#!/usr/bin/env bash
# Puts single faults into a copy of code/gdm and standins, one at a time: an operator, a constant or a condition is
# changed, or a statement is deleted. Builds each, runs the fast tests until one fails, and lists the mutants that all
# tests pass, as file:line: before -> after. One that does not compile is replaced by another. The sources of the tree
# are not touched.
#   scripts/mutants.sh [SEED [COUNT]] [FOLDER...]    by default seed 1, 50 mutants, in code/gdm and standins
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages $(build_packages 6) $(test_packages)
exec python3 scripts/mutants.py "$@"
