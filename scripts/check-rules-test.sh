#!/usr/bin/env bash
# Breaks each rule of the tree once, in a copy, and expects the check of that rule to fail and to print the place. On the
# unchanged copy, the checks must pass. Ends with a nonzero status if any expectation fails.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2046
install_packages git clang-format clang-tidy clazy doxygen shellcheck gdb $(build_packages 6) $(test_packages)
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
git ls-files -z -co --exclude-standard | xargs -0 cp --parents -P -t "$copy"
cd "$copy"
git init -q
git add -A

failed=0
passed=0
complain() {
    printf 'WRONG: %s\n' "$*" >&2
    failed=$((failed + 1))
}

holds() { # COMMAND...: the command passes on the unchanged tree
    local said
    if said=$("$@" 2>&1); then
        passed=$((passed + 1))
    else
        complain "fails on the unchanged tree: $*"$'\n'"$said"
    fi
}

# breaks PLACE COMMAND...: on the changed tree, the command fails and prints the place. Restores the tree.
breaks() {
    local place=$1 said status=0
    shift
    said=$("$@" 2>&1) || status=$?
    if [ $status -eq 0 ]; then
        complain "passes despite $place: $*"$'\n'"$(git diff; git ls-files -o --exclude-standard)"
    elif ! grep -qF -- "$place" <<<"$said"; then
        complain "failed, but did not print $place: $*"$'\n'"$said"
    else
        passed=$((passed + 1))
    fi
    git checkout -q -- .
    git clean -qfd
}

new_file() { # PATH LINE...
    mkdir -p "$(dirname "$1")"
    printf '%s\n' "${@:2}" >"$1"
}
after() { # FILE REGEX LINE: inserts the line after the first match
    sed -i "0,/$2/s//&\n$3/" "$1"
    ! git diff --quiet -- "$1" || complain "no line was inserted into $1"
}

check=scripts/check.sh
holds $check --quick

echo "== format, names, shell"
new_file code/gdm/items/planted.cpp 'int   planted ;'
breaks items/planted.cpp $check format
new_file code/gdm/items/Planted.h '// A name that is not in snake_case'
breaks items/Planted.h $check names
new_file scripts/planted.sh '#!/bin/sh' 'cd planted'
breaks scripts/planted.sh $check shell

echo "== includes"
while read -r folder included; do
    new_file "$folder/planted.h" "#include $included"
    breaks "$folder/planted.h" $check includes
done <<'PLANTS'
code/gdm "gdm/host/planted.h"
code/gdm/host "gdm/items/planted.h"
code/gdm/items "gdm/conditions/planted.h"
code/gdm/items "gdm/editing/planted.h"
code/gdm/items "gdm/dialogs/planted.h"
code/gdm/conditions "gdm/editing/planted.h"
code/gdm/conditions "gdm/dialogs/planted.h"
code/gdm/editing "gdm/conditions/planted.h"
code/gdm/editing "gdm/dialogs/planted.h"
code/gdm/dialogs "tvx/planted.h"
code/gdm/dialogs "tvx/tvx_control.h"
code/gdm/dialogs <tvx/planted.h>
code/gdm/dialogs "../../../standins/tvx/planted.h"
code/gdm/dialogs "planted.h"
standins/common "tvx/planted.h"
standins/common "gdm/items/planted.h"
standins/gen "dml/planted.h"
standins/gen "gdm/editing/planted.h"
standins/dml "gen/planted.h"
standins/dml "gdm/items/dml_attr_lwi.h"
standins/tvx "gdm/items/dml_attr_lwi.h"
standins/tvx "gdm/dialogs/planted.h"
standins/tvx <gdm/dialogs/planted.h>
standins/tvx "gen/planted.h"
demo "tvx/planted.h"
demo "gdm/editing/planted.h"
demo "demo/walk/planted.h"
demo/walk "demo/planted.h"
demo/walk "tvx/planted.h"
demo/walk "gdm/conditions/planted.h"
PLANTS
new_file code/gdm/planted/planted.h '#include <vector>'
breaks code/gdm/planted $check includes

echo "== versions of Qt, facts"
new_file code/gdm/items/planted.h '#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)' '#endif'
breaks items/planted.h $check versions
new_file standins/tvx/planted.h 'constexpr char Planted[] = "@$@#tvx@$@#dialog@$@#1@$@#Planted";'
breaks tvx/planted.h $check facts
new_file code/gdm/dialogs/planted.h 'constexpr char Planted[] = "edt_planted";'
breaks dialogs/planted.h $check facts
new_file tests/contract/planted.cpp '#include <QElapsedTimer>'
breaks contract/planted.cpp $check facts
for line in 'auto planted = QStringLiteral("planted");' '#include <QtWidgets/QWidget>' \
    'connect(one, &QObject::destroyed, two, &QObject::deleteLater);' 'class Planted final : public QObject'; do
    new_file code/gdm/items/planted.h "$line"
    breaks items/planted.h $check qt4
done

echo "== messages"
sed -i '0,/@#\([^@#"]*\)"/s//@#Planted \1"/' code/gdm/host/message_keys.h
breaks po/zudunmaf.pot $check messages
awk '/^msgstr/ { n++ } n == 3 && /^msgstr/ { print "msgstr \"\""; next } { print }' po/de.po >planted
mv planted po/de.po
breaks po/de.po $check messages

echo "== pages"
while read -r place line; do
    printf '\n%s\n' "$line" >>docs/architecture.md
    breaks "$place" $check pages
done <<'PLANTS'
planted.md See [planted](planted.md).
scripts/planted.sh `scripts/planted.sh` is named.
standins/planted.h `standins/planted.h` is named.
ChosenRows::planted() `ChosenRows::planted()` is named.
PLANTS
printf '\n    scripts/planted.sh --now\n' >>CONTRIBUTING.md
breaks scripts/planted.sh $check pages

echo "== API reference"
after code/gdm/items/dml_attr_lwi.h '^public:' '    int planted() const;'
breaks planted $check reference

echo "== clang-tidy and clazy"
long_function=(
    'int planted(int n);' 'int planted(int n)' '{'
    "$(for n in $(seq 1 20); do printf '    if (n == %d)\n        n += 2;\n' "$n"; done)"
    '    return n;' '}'
)
holds $check tidy clazy code/gdm/items/attr_access.cpp tests/standins/tst_gen_messages.cpp
for place in code/gdm/items/attr_access.cpp tests/standins/tst_gen_messages.cpp; do
    printf '%s\n' "${long_function[@]}" >>$place
    breaks "$place" $check tidy $place
done
cat >>code/gdm/items/attr_access.cpp <<'PLANT'
#include <QMap>
int planted(const QMap<int, int> &map);
int planted(const QMap<int, int> &map)
{
    int sum = 0;
    for (const int key : map.keys())
        sum += key;
    return sum;
}
PLANT
breaks code/gdm/items/attr_access.cpp $check clazy code/gdm/items/attr_access.cpp

echo "== binary interface and binding"
rebuild() {
    cmake --build build/qt6-dev --target zudunmaf zudunmaf_tvx
}
abi() {
    rebuild && scripts/check-abi.sh 6 build/qt6-dev
}
binding() {
    rebuild && READELF=readelf sh tests/binding/binding.sh relocations build/qt6-dev/code/libzudunmaf.so code/gdm/host
}
cmake --preset qt6-dev >/dev/null
holds abi
holds binding
cat >>code/gdm/items/attr_access.cpp <<'PLANT'
namespace Zudunmaf
{
__attribute__((visibility("default"))) int planted();
int planted()
{
    return 1;
}
}
PLANT
breaks planted abi
cat >>code/gdm/items/attr_access.cpp <<'PLANT'
#include "gdm/host/gen_services.h"
namespace Zudunmaf
{
void *planted();
void *planted()
{
    return reinterpret_cast<void *>(&gen__str_cmp_nc);
}
}
PLANT
breaks gen__str_cmp_nc binding

echo "$passed as expected, $failed not"
[ $failed -eq 0 ]
