#!/bin/sh
# demo_test.sh CASE PROGRAM: one case of the demo host's tests, in a directory of its own that goes afterwards.
set -eu
program=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
    echo "$*" >&2
    exit 1
}

# same WHAT: the files wanted and got are equal.
same() {
    diff -u wanted got || fail "$1"
}

# refused WORD ARGUMENT...: exit 2, nothing on standard output, one line on standard error with the word in it.
refused() {
    word=$1
    shift
    status=0
    "$program" "$@" >got 2>errors || status=$?
    [ "$status" -eq 2 ] || fail "exit $status and not 2: $*"
    [ ! -s got ] || fail "lines were printed: $*"
    [ "$(wc -l <errors)" -eq 1 ] || fail "not one line: $* -> $(cat errors)"
    grep -qF -- "$word" errors || fail "no '$word' in: $(cat errors)"
}

walk_of_filter() {
    "$program" filter --walk pictures >got
    printf '%s\n' '5 <= width <= 9' 'film_polarity = negative' 'layer_name' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] && [ -s pictures/02-layer.png ] || fail "no pictures"
}

walk_of_assign() {
    "$program" assign --walk pictures --units mm >got
    printf '%s\t%s\n' vertex_count 4 rotation '2.500 deg' shape octagon copper_note thin \
        corner_radius '0.010 inch' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] || fail "no pictures"
}

# What is printed can be given back, and comes out again as it was.
start_of_filter() {
    printf '%s\n' '5 <= width <= 9' '0.100 <= spacing_min <= 0.250' 'base_copper = 18 µm' 'remark = a = b <= c' \
        'locked' 'remark' 'width' >wanted
    "$program" filter --accept --start wanted >got
    same "the conditions of a start file"
    refused 'wanted:2: there is no attribute' filter --accept --start wanted --dictionary "$(small_dictionary)"
    start_line '5 <= wodth <= 9' wodth
    start_line '0 <= width <= 9' '1 to 100'
    start_line '9 <= width <= 5' 'above'
    start_line '5 <= width <= 9.5' 'no whole number'
    start_line '5 <= remark <= 9' 'takes no bounds'
    start_line 'width = 5' 'equals nothing'
    start_line 'film_polarity = upside' 'no option'
}

small_dictionary() {
    cat >small.json <<'JSON'
{"dictionaries": [{"id": 3, "title": "small", "attributes": [
  {"name": "width", "prompt": "Width", "group": "One", "type": "integer", "entities": ["layer", "feature"],
   "default": 7, "min": 1, "max": 100}]}]}
JSON
    echo small.json
}

# start_line LINE WORD: refused with its place, behind a line that is right.
start_line() {
    printf 'locked\n\n%s\n' "$1" >bad
    refused "bad:3: " filter --accept --start bad
    grep -qF -- "$2" errors || fail "no '$2' in: $(cat errors)"
}

start_of_assign() {
    printf '%s\t%s\n' width 12 line_width '0.012 inch' shape octagon fill_pattern '' remark 'two  words' \
        mirrored '' scale_x 1.5 >lines
    grep -v scale_x lines >wanted
    "$program" assign --accept --units inch --start wanted >got
    same "the values of a start file"
    refused 'lines:7: there is no attribute' assign --accept --start lines
    for line in 'width\tmany' 'width\t101' 'line_width\t3 ohm' 'line_width\t9 mm' 'shape\tflat' 'mirrored\tyes'; do
        printf "remark\t\n$line\n" >bad
        refused 'bad:2: ' assign --accept --start bad
    done
    printf 'width\nwidth\n' >bad
    refused 'bad:2: ' assign --accept --start bad
}

refusals() {
    refused 'which dialog'
    refused 'which dialog' both
    refused 'which dialog' filter assign
    refused 'shiny' filter --shiny
    refused 'filter' filter --accept --filter
    refused 'known are inch, mm' filter --accept --units furlong
    refused 'exclude' filter --accept --walk pictures
    refused 'missing.json' filter --accept --dictionary missing.json
    refused 'missing.ini' filter --accept --config missing.ini
    refused 'missing.txt' filter --accept --start missing.txt
    printf '{"dictionaries": [' >bad.json
    refused 'bad.json' filter --accept --dictionary bad.json
    printf '[General]\nedt_disp_attr_by_prompt=perhaps\n' >bad.ini
    refused 'edt_disp_attr_by_prompt' filter --accept --config bad.ini
    "$program" --help | grep -q -- '--start' || fail "no help"
    "$program" --version | grep -q '^zudunmaf-demo [0-9]' || fail "no version"
    # A walk over attributes that it does not know ends with the step.
    status=0
    "$program" filter --walk pictures --dictionary "$(small_dictionary)" >got 2>errors || status=$?
    [ "$status" -eq 3 ] && grep -q 'step ' errors && [ ! -s got ] || fail "exit $status: $(cat errors)"
}

$1
