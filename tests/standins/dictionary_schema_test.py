"""Checks the dictionary schema: it takes the shipped dictionary and the example of the format page, and it
refuses attributes that the reader refuses."""
import copy
import json
import re
import sys

import jsonschema

schema_path, page_path, dictionary_path = sys.argv[1:]
with open(schema_path, encoding="utf-8") as file:
    schema = json.load(file)
with open(page_path, encoding="utf-8") as file:
    example = json.loads(re.search(r"```json\n(.*?)```", file.read(), re.DOTALL).group(1))
with open(dictionary_path, encoding="utf-8") as file:
    shipped = json.load(file)

jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
validator.validate(example)
validator.validate(shipped)

WRONG = [
    {"name": ""},
    {"name": "n" * 65},
    {"name": "a\0b"},
    {"type": "colour"},
    {"entities": ["board"]},
    {"entities": "layer"},
    {"default": 7.5},
    {"max": 2147483648},
    {"min": None},
    {"units": "mm"},
    {"surplus": 1},
]
for change in WRONG:
    broken = copy.deepcopy(example)
    broken["dictionaries"][0]["attributes"][0].update(change)
    if validator.is_valid(broken):
        sys.exit(f"the schema takes a wrong attribute: {change}")
