#!/bin/sh
# findings_test.sh EXPECTED COMMAND...: runs the checker and compares what it finds broken or advises, "VERDICT GROUP:
# PROMISE" joined by semicolons, with the extended regular expression. "none" expects nothing and the status 0,
# "unchecked" nothing and the status 3.
set -u
expected=$1
shift
found=$("$@") && status=0 || status=$?
findings=$(printf '%s\n' "$found" | grep -E '^(broken|advice) ' | cut -d: -f1,2 | tr -s ' ')
case $expected in
none) [ $status -eq 0 ] && [ -z "$findings" ] && [ -n "$found" ] && exit 0 ;;
unchecked) [ $status -eq 3 ] && [ -z "$findings" ] && exit 0 ;;
*) [ $status -eq 1 ] && printf '%s' "$findings" | tr '\n' ';' | grep -qxE "$expected" && exit 0 ;;
esac
printf '%s\nstatus %s, expected findings: %s\n' "$found" "$status" "$expected"
exit 1
