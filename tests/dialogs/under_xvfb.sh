#!/bin/sh
# under_xvfb.sh XVFB PROGRAM [ARGUMENT...]: runs a program under an X server of its own. The server picks a free display
# number itself; xvfb-run picks one first, and two that start together can pick the same.
set -eu
xvfb=$1
shift
work=$(mktemp -d)
server=
trap '[ -z "$server" ] || kill "$server" 2>/dev/null || true; wait; rm -rf "$work"' EXIT
trap 'exit 1' INT TERM

mkfifo "$work/display"
"$xvfb" -displayfd 3 -screen 0 1366x1024x24 -nolisten tcp 3>"$work/display" 2>"$work/log" &
server=$!
# Ends without a line if the server does not start.
read -r number <"$work/display" || { cat "$work/log" >&2; exit 1; }
DISPLAY=":$number" "$@"
