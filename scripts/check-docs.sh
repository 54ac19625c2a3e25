#!/usr/bin/env bash
# Checks the pages of the tree: every relative link leads to a file, every command of a code block that starts in the tree
# names a script that can be run, and files and functions that the text names exist.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages git

status=0
complain() {
    echo "$1" >&2
    status=1
}

mapfile -t pages < <(git ls-files -co --exclude-standard -- '*.md')
mapfile -t headers_of_tree < <(git ls-files -co --exclude-standard -- '*.h')
for page in "${pages[@]}"; do
    folder=$(dirname "$page")
    while read -r target; do
        [ -e "$folder/${target%%#*}" ] || complain "$page: dead link: $target"
    done < <(grep -oE '\]\([^)]+\)' "$page" | sed -E 's/^\]\(//; s/\)$//' | grep -vE '^([a-z]+:|#)')
    # A block is indented by four blanks, or stands between fences.
    while read -r command; do
        [ -x "$command" ] || complain "$page: no such command: $command"
    done < <(awk '/^```/ { fenced = !fenced; next } fenced || /^    / { print $1 }' "$page" |
        grep -E '^(\./)?(scripts|\.ci)/')
    # Files of the tree that the text names must be there too.
    while read -r name; do
        [ -e "$name" ] || complain "$page: no such file: $name"
    done < <(grep -oE '`(code|standins|demo|scripts|docs|cmake|examples|tests|bench|po|abi|\.ci)/[A-Za-z0-9_./-]+`' "$page" | tr -d '`')
    # So must functions be in a header with their class. Classes of Qt are not looked up.
    while read -r name; do
        headers=$(grep -lE "^class ([A-Z_]+ )?${name%%::*}\\b" "${headers_of_tree[@]}" || true)
        # shellcheck disable=SC2086
        grep -qsE "\\b${name##*::}\\(" $headers /dev/null || complain "$page: no such function: $name()"
    done < <(grep -oE '`[A-Z][A-Za-z]*::[A-Za-z]+\(\)`' "$page" | tr -d '`()' | grep -v '^Q')
done
exit $status
