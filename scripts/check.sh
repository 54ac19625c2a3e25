#!/usr/bin/env bash
# Checks the tree without running it. Ends with a nonzero status if a check fails.
#   scripts/check.sh            all checks
#   scripts/check.sh --quick    all but the two slow ones, tidy and clazy
#   scripts/check.sh NAME... [FILE...]
#                               the named checks, on the given files: format includes versions facts qt4 names shell
#                               messages pages reference tidy clazy. An argument with a slash is a file
# scripts/check-rules-test.sh breaks each rule once and expects this script to fail.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

quick=(format includes versions facts qt4 names shell messages pages reference)
slow=(tidy clazy)

names=()
only=()
for argument in "$@"; do
    case "$argument" in
        */*) only+=("$argument") ;;
        *) names+=("$argument") ;;
    esac
done

tracked() { # PATHSPEC...: prints the files of the tree, or those of them that were given as arguments
    if [ ${#only[@]} -gt 0 ]; then
        git ls-files -co --exclude-standard -- "$@" | { grep -xF "$(printf '%s\n' "${only[@]}")" || [ $? -eq 1 ]; }
    else
        git ls-files -co --exclude-standard -- "$@"
    fi
}

none() { # REASON: standard input must be empty
    local found
    found=$(cat)
    [ -z "$found" ] || { printf '%s\n^ %s\n' "$found" "$1" >&2; return 1; }
}

forbid() { # REASON REGEX: no line of the files named on standard input may match
    { xargs -r grep -nHE -e "$2" || [ $? -eq 123 ]; } | none "$1"
}

without() { # REGEX: prints the lines that do not match
    grep -vE "$1" || [ $? -eq 1 ]
}

check_format() {
    install_packages clang-format
    tracked '*.cpp' '*.h' | xargs -r clang-format --dry-run -Werror
}

# Quoted includes that each folder may have, as a regular expression. Angle brackets are for system headers.
contract='gdm/host/[^/]*|gdm/items/attr_(records|roles)\.h|gdm/dialogs/tvx_attributes_selection_dialog\.h'
installed='gdm/host/(gen_services|dml_dictionary|(message|config)_keys)\.h|gdm/items/attr_(records|roles)\.h|gdm/gdm_qt\.h'
allowed() {
    case "$1" in
        code/gdm) echo 'gdm/(items|conditions|dialogs)/[^/]*|gdm/host/missing_host_functions\.h|gdm/zudunmaf_qt\.h' ;;
        code/gdm/host) echo 'gdm/host/[^/]*' ;;
        code/gdm/items) echo 'gdm/(host|items)/[^/]*' ;;
        code/gdm/conditions) echo 'gdm/(host|items|conditions)/[^/]*' ;;
        code/gdm/editing) echo 'gdm/(host|items|editing)/[^/]*' ;;
        code/gdm/dialogs) echo 'gdm/(host|items|conditions|editing|dialogs)/[^/]*' ;;
        standins/common) echo "common/[^/]*|$contract" ;;
        standins/gen) echo "(common|gen)/[^/]*|$contract" ;;
        standins/dml) echo "(common|dml)/[^/]*|gen/gen_control\.h|$contract" ;;
        standins/tvx) echo "(common|tvx)/[^/]*|$contract" ;;
        host_check) echo "[^/]*|$installed" ;;
        host_check/base) echo "base/[^/]*|(check|walk)\.h|$installed" ;;
        demo) echo '[^/]*|(tvx|gen|dml)/[a-z]*_control\.h|gdm/(host|items|conditions|dialogs)/[^/]*|gdm/gdm_qt\.h' ;;
        demo/walk) echo "[^/]*|demo/(host|options)\.h|$contract" ;;
    esac
}

check_includes() {
    local folder pattern status=0
    while read -r folder; do
        pattern=$(allowed "$folder")
        if [ -z "$pattern" ]; then
            echo "$folder has no allow-list in scripts/check.sh" >&2
            status=1
            continue
        fi
        tracked ":(glob)$folder/*.h" ":(glob)$folder/*.cpp" | xargs -r grep -nHE '^ *# *include' |
            without "include +(\"($pattern)\"|<[^/>]*>)|include +<sys/[^/>]*>" |
            none "$folder must not include this" || status=1
    done < <(tracked 'code/*.h' 'code/*.cpp' 'standins/*.h' 'standins/*.cpp' 'demo/*.h' 'demo/*.cpp' \
        'host_check/*.h' 'host_check/*.cpp' |
        xargs -r -n 1 dirname | sort -u)
    return $status
}

check_versions() {
    tracked 'code/*.h' 'code/*.cpp' | without '^code/gdm/(host/qt_compat|gdm_qt)\.h$' |
        forbid "only code/gdm/host/qt_compat.h and gdm_qt.h distinguish versions of Qt" 'QT_VERSION'
}

# One place for each fact.
check_facts() {
    local status=0
    tracked 'code/*.cpp' 'standins/*.cpp' 'demo/*.cpp' 'code/*.h' 'standins/*.h' 'demo/*.h' |
        without '/(message_keys|tvx_texts)\.h$' |
        forbid "message keys belong in message_keys.h or tvx_texts.h" '^[^/]*"@\$@#[A-Za-z]' || status=1
    tracked 'code/*.cpp' 'code/*.h' | without '/config_keys\.h$' |
        forbid "configuration keys belong in config_keys.h" '"edt_' || status=1
    tracked 'tests/*.cpp' 'tests/*.h' |
        forbid "times are measured in bench/, not in tests" 'QElapsedTimer|QBENCHMARK|std::chrono' || status=1
    return $status
}

# code/gdm stays source compatible with Qt 4.8.
check_qt4() {
    tracked 'code/*.cpp' 'code/*.h' | forbid "not in Qt 4.8: see docs/porting-qt.md" \
        'QStringLiteral|# *include <Qt[A-Z][A-Za-z]*/|connect\([^)]*, *&|^ *class .*\bfinal\b'
}

check_names() {
    tracked '*.cpp' '*.h' | without '(^|/)[a-z0-9_]+\.(cpp|h)$' | none "file names are in snake_case"
}

check_shell() {
    install_packages shellcheck
    tracked '*.sh' .ci/run | xargs -r shellcheck --severity=warning
}

check_messages() {
    scripts/extract-messages.sh --check
}

check_pages() {
    scripts/check-docs.sh
}

check_reference() {
    scripts/docs.sh
}

# Makes the compilation database of the sanitizer build, which has all targets and no precompiled headers. Runs moc and
# compiles nothing.
lint_tree=build/qt6-asan
lint_tree_is_ready=
prepare_lint_tree() {
    [ -z "$lint_tree_is_ready" ] || return 0
    # shellcheck disable=SC2046
    install_packages $(build_packages 6) $(test_packages)
    cmake --preset qt6-asan >/dev/null && cmake --build --preset qt6-asan --target autogen >/dev/null || return 1
    lint_tree_is_ready=yes
}

run_tidy() { # OPTION..., file names on standard input
    # clang-tidy prints the number of warnings in system headers, but not the warnings.
    xargs -r -P 2 -n 2 clang-tidy --quiet -p "$lint_tree" "$@" 2>&1 | without '^[0-9]+ warnings? generated\.$'
}

check_tidy() {
    install_packages clang-tidy
    prepare_lint_tree || return 1
    local status=0
    tracked 'code/*.cpp' 'standins/*.cpp' 'demo/*.cpp' 'host_check/*.cpp' | run_tidy || status=1
    # In tests, only the length of functions. Clang has warnings of its own about Qt Test.
    tracked 'tests/*.cpp' | without '^tests/package/' |
        run_tidy --checks='-*,readability-function-size' --extra-arg=-w || status=1
    return $status
}

check_clazy() {
    install_packages clazy
    prepare_lint_tree || return 1
    local checks=level0,level1,detaching-member,qt-keywords,reserve-candidates
    checks+=,no-connect-3arg-lambda,no-range-loop-reference,no-overloaded-signal,no-fully-qualified-moc-types
    tracked 'code/*.cpp' 'standins/*.cpp' 'demo/*.cpp' 'host_check/*.cpp' |
        xargs -r -P 2 -n 2 clazy-standalone -p "$lint_tree" -checks="$checks" -extra-arg=-Werror 2>&1 |
        without "^[0-9]+ warnings? generated\.$|internal error: couldn't find method from pmf"
}

[ ${#names[@]} -gt 0 ] || names=("${quick[@]}" "${slow[@]}")
[ "${names[0]}" != --quick ] || names=("${quick[@]}" "${names[@]:1}")
install_packages git
failed=()
for name in "${names[@]}"; do
    if ! declare -F "check_$name" >/dev/null; then
        echo "usage: scripts/check.sh [--quick | NAME...], with names of: ${quick[*]} ${slow[*]}" >&2
        exit 2
    fi
    echo "== $name"
    # set -e has no effect inside the checks: each returns its own status.
    "check_$name" || failed+=("$name")
done
if [ ${#failed[@]} -gt 0 ]; then
    echo "Failed: ${failed[*]}" >&2
    exit 1
fi
