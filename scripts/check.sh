#!/usr/bin/env bash
# Checks the sources without running them: format, include directions, catalogues, pages, the API reference, clang-tidy
# and clazy. Ends with a nonzero status where one of them finds something.
#   scripts/check.sh           all of them
#   scripts/check.sh --quick   all but clang-tidy and clazy
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages clang-format clang-tidy clazy $(build_packages 6)

mapfile -t sources < <(git ls-files -co --exclude-standard -- '*.cpp' '*.h')

echo "== format"
clang-format --dry-run -Werror "${sources[@]}"

echo "== include directions"
wrong_way() { # FOLDER REGEX: prints and fails where a file below FOLDER includes what REGEX names
    if grep -rnE "#include +[\"<].*($2)" "$1"; then
        echo "$1 must not include this" >&2
        return 1
    fi
}
wrong_way code '(tvx|gen|dml|standins)/[a-z_]*_control\.h|standins/'
wrong_way code/gdm/host '(items|editing|dialogs)/'
wrong_way code/gdm/items '(editing|dialogs)/'
wrong_way code/gdm/editing 'dialogs/'
if grep -rn 'QT_VERSION' code --include='*.h' --include='*.cpp' | grep -v '^code/gdm/host/qt_compat.h:'; then
    echo "versions of Qt are told apart in qt_compat.h alone" >&2
    exit 1
fi

echo "== catalogues"
scripts/extract-messages.sh --check

echo "== pages and API reference"
scripts/check-docs.sh
scripts/docs.sh
[ "${1:-}" = --quick ] && exit 0

echo "== clang-tidy"
cmake --preset qt6-dev >/dev/null
cmake --build --preset qt6-dev
mapfile -t units < <(git ls-files -co --exclude-standard -- 'code/*.cpp' 'standins/*.cpp' 'demo/*.cpp')
printf '%s\n' "${units[@]}" | xargs -P 2 -n 4 clang-tidy --quiet -p build/qt6-dev 2>/dev/null

echo "== clazy"
checks=level0,level1,detaching-member,qt-keywords,reserve-candidates
checks+=,no-connect-3arg-lambda,no-range-loop-reference,no-overloaded-signal,no-fully-qualified-moc-types
printf '%s\n' "${units[@]}" | xargs -P 2 -n 4 clazy-standalone -p build/qt6-dev -checks="$checks" \
    -extra-arg=-Werror 2>&1 | { grep -E 'error:|warning:' || true; }
