#!/usr/bin/env bash
# Checks the pages of the tree: every relative link leads to a file, and every command of a code block that starts in
# the tree names a script that can be run.
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
    done < <(grep -oE '`(scripts|docs|cmake|examples|tests|bench|po|abi|\.ci)/[A-Za-z0-9_./-]+`' "$page" | tr -d '`')
done
exit $status
