"""Checks the schema of saved conditions: it takes and refuses what the reader takes and refuses."""
import json
import sys

import jsonschema

schema_path, table_path = sys.argv[1:]
with open(schema_path, encoding="utf-8") as file:
    schema = json.load(file)
with open(table_path, encoding="utf-8") as file:
    table = json.load(file)

jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
for document in table["good"]:
    validator.validate(document)
for bad in table["bad"]:
    if validator.is_valid(bad["document"]):
        sys.exit(f"the schema takes what the reader refuses: {bad}")
