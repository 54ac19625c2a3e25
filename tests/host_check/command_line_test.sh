#!/bin/sh
# command_line_test.sh PROGRAM LIBRARY...: the exit status and the JSON of a host without a base dialog, one of whose
# texts is not UTF-8.
set -u
program=$1
shift
for wrong in "" "--no-such-option $1" "--units 1,x $1" "--dictionary" "no_such_library.so"; do
    # shellcheck disable=SC2086
    "$program" $wrong 2>/dev/null && exit 1
    [ $? -eq 2 ] || { echo "status 2 expected for: $wrong"; exit 1; }
done
json=$("$program" --json "$@")
[ $? -eq 1 ] || { echo "status 1 expected: $json"; exit 1; }
printf '%s' "$json" | python3 -c '
import collections, json, sys
checks = json.load(sys.stdin.buffer)["checks"]
counts = collections.Counter((check["group"], check["outcome"]) for check in checks)
print(counts)
expected = ("process", "broken"), ("services", "kept"), ("dictionary", "advice")
quoted = "came \"H\\xF6he\"\\x0A"
sys.exit(any(counts[pair] == 0 for pair in expected) or not any(quoted in check["detail"] for check in checks))'
