#!/usr/bin/env bash
# Puts faults into a copy of code/gdm and standins, one at a time: changes an operator, a constant or a condition, or
# deletes a statement. Builds each mutant and runs the fast tests until one fails. Lists the mutants that pass all tests, as
# file:line: before -> after. Replaces mutants that do not compile. The sources of the tree stay unchanged.
#   scripts/mutants.sh [SEED [COUNT]] [FOLDER...]    by default seed 1, 50 mutants, in code/gdm and standins
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages $(build_packages 6) $(test_packages)
exec python3 scripts/mutants.py "$@"
