#!/bin/sh
# demo_test.sh CASE PROGRAM SCHEMA: one case of the demo host's tests, in a directory of its own that goes afterwards.
set -eu
program=$2
schema=$3
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
    "$program" filter --walk pictures --save walked.json >got
    printf '%s\n' '5 <= width <= 9' 'film_polarity = negative' 'layer_name' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] && [ -s pictures/02-layer.png ] || fail "no pictures"
    opened_again filter
}

walk_of_assign() {
    "$program" assign --walk pictures --units mm --save walked.json >got
    printf '%s\t%s\n' vertex_count 4 rotation '2.500 deg' shape octagon copper_note thin \
        corner_radius '0.010 inch' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] || fail "no pictures"
    opened_again assign --units inch
    # Values are kept in the units of their definitions; only the lines follow the display units.
    "$program" assign --accept --start walked.json --save again.json >got
    cmp walked.json again.json || fail "other values under other units"
}

# opened_again DIALOG ARGUMENT...: what was saved comes back byte for byte, with the lines of the file "wanted".
opened_again() {
    "$program" "$@" --accept --start walked.json --save again.json >got
    same "the lines of what was saved"
    cmp walked.json again.json || fail "another document"
    # As in tests/contract, the schema is only checked where Python has the package for it.
    if python3 -c 'import jsonschema' 2>errors; then
        python3 -c 'import json, jsonschema, sys
schema, document = (json.load(open(path, encoding="utf-8")) for path in sys.argv[1:])
jsonschema.Draft7Validator(schema).validate(document)' "$schema" again.json || fail "not as the schema says"
    fi
}

# What is printed can be given back, and comes out again as it was; so does the document that is made of it.
start_of_filter() {
    printf '%s\n' '5 <= width <= 9' '0.100 <= spacing_min <= 0.250' 'base_copper = 18 µm' 'remark = a = b <= c' \
        'locked' 'remark' 'width' >wanted
    "$program" filter --accept --start wanted --save walked.json >got
    same "the conditions of a start file"
    opened_again filter
    sed '1s/^/\xef\xbb\xbf/; s/$/\r/' wanted >from_windows
    "$program" filter --accept --start from_windows >got
    same "a byte order mark and CR LF"
    refused 'wanted:2: no attribute' filter --accept --start wanted --dictionary "$(small_dictionary)"
    refused 'walked.json: conditions[1]: there is no attribute' \
        filter --accept --start walked.json --dictionary small.json
    start_line '5 <= wodth <= 9' "no attribute of the dictionary gives the line '5 <= wodth <= 9'"
    start_line '5 <= width <= 9.5' 'no attribute'
    start_line '5 <= remark <= 9' 'no attribute'
    start_line 'width = 5' 'no attribute'
    start_line '0 <= width <= 9' 'beyond the limits 1 to 100'
    start_line '9 <= width <= 5' 'above'
    start_line 'film_polarity = upside' "no option 'upside'"
    sed 's/"high": 9/"high": "nine"/' walked.json >bad
    refused 'bad: conditions[0].high: is no number' filter --accept --start bad
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
    printf '%s\t%s\n' width 12 line_width '0.012 inch' shape octagon fill_pattern '' remark 'two  words' mirrored '' >wanted
    cat >walked.json <<'JSON'
{"version": 1, "assignments": [
    {"name": "width", "type": "integer", "value": 12},
    {"name": "line_width", "type": "float", "value": 12.3, "units": 2, "unitsText": "mil"},
    {"name": "shape", "type": "option", "value": "octagon"},
    {"name": "fill_pattern", "type": "option", "value": ""},
    {"name": "remark", "type": "text", "value": "two  words"},
    {"name": "mirrored", "type": "boolean", "value": true}]}
JSON
    "$program" assign --accept --units inch --start walked.json --save saved.json >got
    same "the values of a start file"
    mv saved.json walked.json
    opened_again assign --units inch
    refused 'wanted: values are read from JSON only' assign --accept --start wanted
    start_value 's/: 12$/: 101/' 'assignments[0]: 101 is beyond the limits 1 to 100'
    start_value 's/: 12$/: "many"/' 'assignments[0].value: is no whole number'
    start_value 's/octagon/flat/' "no option 'flat'"
    start_value 's/"mm"/"ohm"/' "the units 'ohm'"
    start_value 's/line_width/scale_x/' "'scale_x' is not available"
    start_value 's/line_width/width/' "'width' has another type now"
    start_value 's/"remark"/"width"/; s/"type": "text"/"type": "integer"/; s/"two  words"/5/' "'width' has a value already"
}

# start_value SED_SCRIPT WORD: refused, for the word.
start_value() {
    sed "$1" walked.json >bad
    refused "$2" assign --accept --units inch --start bad
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
    refused 'nowhere/saved.json' filter --accept --save nowhere/saved.json
    "$program" --help | grep -q -- '--save' || fail "no help"
    "$program" --version | grep -q '^zudunmaf-demo [0-9]' || fail "no version"
    # A walk over attributes that it does not know ends with the step.
    status=0
    "$program" filter --walk pictures --dictionary "$(small_dictionary)" >got 2>errors || status=$?
    [ "$status" -eq 3 ] && grep -q 'step ' errors && [ ! -s got ] || fail "exit $status: $(cat errors)"
}

$1
