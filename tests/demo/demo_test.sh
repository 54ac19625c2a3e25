#!/bin/sh
# demo_test.sh CASE DEMO WALK SCHEMA: runs one of the cases below in a temporary directory. DEMO and WALK are the programs
# zudunmaf-demo and zudunmaf-walk, SCHEMA is the JSON Schema of saved results.
set -eu
demo=$2
walk=$3
schema=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
    echo "$*" >&2
    exit 1
}

# same WHAT: fails unless the files "wanted" and "got" are equal.
same() {
    diff -u wanted got || fail "$1"
}

# refused TEXT ARGUMENT...: fails unless the demo exits with 2, prints nothing, and reports one line with the text.
refused() {
    program_refused "$demo" "$@"
}

program_refused() {
    program=$1
    text=$2
    shift 2
    status=0
    "$program" "$@" >got 2>errors || status=$?
    [ "$status" -eq 2 ] || fail "exit $status and not 2: $*"
    [ ! -s got ] || fail "lines were printed: $*"
    [ "$(wc -l <errors)" -eq 1 ] || fail "not one line: $* -> $(cat errors)"
    grep -qF -- "$text" errors || fail "no '$text' in: $(cat errors)"
}

filter_walk() {
    "$walk" filter --pictures pictures --save walked.json >got
    printf '%s\n' '5 <= width <= 9' 'film_polarity = negative' 'layer_name' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] && [ -s pictures/02-layer.png ] || fail "no pictures"
    opened_again filter
}

assign_walk() {
    "$walk" assign --pictures pictures --units mm --save walked.json >got
    printf '%s\t%s\n' vertex_count 4 rotation '2.500 deg' shape octagon copper_note thin \
        corner_radius '0.010 inch' >wanted
    same "the lines of the walk"
    [ -s pictures/01-open.png ] || fail "no pictures"
    opened_again assign --units inch
    # Values are kept in the units of their definitions; only the lines follow the display units.
    "$demo" assign --accept --start walked.json --save again.json >got
    cmp walked.json again.json || fail "other values under other units"
}

# opened_again DIALOG ARGUMENT...: fails unless walked.json, restored and saved again, gives the same bytes, and the lines
# in the file "wanted".
opened_again() {
    "$demo" "$@" --accept --start walked.json --save again.json >got
    same "the lines of what was saved"
    cmp walked.json again.json || fail "another document"
    # As in tests/contract, only checked against the schema if Python has the package for it.
    if python3 -c 'import jsonschema' 2>errors; then
        python3 -c 'import json, jsonschema, sys
schema, document = (json.load(open(path, encoding="utf-8")) for path in sys.argv[1:])
jsonschema.Draft7Validator(schema).validate(document)' "$schema" again.json || fail "not as the schema says"
    fi
}

# Printed lines and saved documents restore the same conditions.
start_filter() {
    printf '%s\n' '5 <= width <= 9' '0.100 <= spacing_min <= 0.250' 'base_copper = 18 µm' 'remark = a = b <= c' \
        'locked' 'remark' 'width' >wanted
    "$demo" filter --accept --start wanted --save walked.json >got
    same "the conditions of a start file"
    opened_again filter
    sed '1s/^/\xef\xbb\xbf/; s/$/\r/' wanted >from_windows
    "$demo" filter --accept --start from_windows >got
    same "a byte order mark and CR LF"
    refused 'wanted: line 2: no attribute' filter --accept --start wanted --dictionary "$(small_dictionary)"
    refused 'walked.json: entry 2: there is no attribute' \
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

# start_line LINE TEXT: fails unless the demo names the number of the wrong line and gives the text as the reason.
start_line() {
    printf 'locked\n\n%s\n' "$1" >bad
    refused "bad: line 3: " filter --accept --start bad
    grep -qF -- "$2" errors || fail "no '$2' in: $(cat errors)"
}

start_assign() {
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
    "$demo" assign --accept --units inch --start walked.json --save saved.json >got
    same "the values of a start file"
    mv saved.json walked.json
    opened_again assign --units inch
    refused 'JSON' assign --accept --start wanted
    start_value 's/: 12$/: 101/' 'entry 1: 101 is beyond the limits 1 to 100'
    start_value 's/: 12$/: "many"/' 'assignments[0].value: is no whole number'
    start_value 's/octagon/flat/' "no option 'flat'"
    start_value 's/"mm"/"ohm"/' "the units 'ohm'"
    start_value 's/line_width/scale_x/' "'scale_x' is not available"
    start_value 's/line_width/width/' "'width' has another type now"
    start_value 's/"remark"/"width"/; s/"type": "text"/"type": "integer"/; s/"two  words"/5/' "'width' has a value already"
}

# start_value SED_SCRIPT TEXT: fails unless the demo refuses the changed document with the text.
start_value() {
    sed "$1" walked.json >bad
    refused "$2" assign --accept --units inch --start bad
}

wrong_options() {
    refused 'which dialog'
    refused 'which dialog' both
    refused 'which dialog' filter assign
    refused 'shiny' filter --shiny
    refused 'filter' filter --accept --filter
    refused 'known are inch, mm' filter --accept --units furlong
    refused 'display' filter
    program_refused "$walk" '--pictures' filter
    refused 'missing.json' filter --accept --dictionary missing.json
    refused 'missing.ini' filter --accept --config missing.ini
    refused 'missing.txt' filter --accept --start missing.txt
    printf '{"dictionaries": [' >bad.json
    refused 'bad.json' filter --accept --dictionary bad.json
    printf '[General]\nedt_disp_attr_by_prompt=perhaps\n' >bad.ini
    refused 'edt_disp_attr_by_prompt' filter --accept --config bad.ini
    refused 'nowhere/saved.json' filter --accept --save nowhere/saved.json
    "$demo" --help | grep -q -- '--save' || fail "no help"
    "$demo" --version | grep -q '^zudunmaf-demo [0-9]' || fail "no version"
    # The walk fails, because it needs the attributes of the built-in dictionary.
    status=0
    "$walk" filter --pictures pictures --dictionary "$(small_dictionary)" >got 2>errors || status=$?
    [ "$status" -eq 3 ] && grep -q 'step ' errors && [ ! -s got ] || fail "exit $status: $(cat errors)"
}

# The demo is installed, and must not bring Qt Test with it.
linking() {
    readelf -d "$demo" >got
    grep -q 'NEEDED.*libzudunmaf\.so' got || fail "does not link the library"
    ! grep -q 'NEEDED.*Qt[56]Test' got || fail "links Qt Test"
}

$1
