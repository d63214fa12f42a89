#!/usr/bin/python3
"""Checks BeerJSON files against the schema of the format.

Usage: check_beerjson.py SCHEMA_FOLDER FILE...

Prints a line for each fault and ends with 0 if there is none, with 1 if there are some, and with 77 if the
module jsonschema (Debian: python3-jsonschema) or the schema is missing.
"""

import json
import pathlib
import sys

MISSING = 77


def load_schemas(folder):
    """Returns the schemas of the folder by the names under which they refer to each other."""
    schemas = {}
    for path in sorted(folder.glob("*.json")):
        schema = json.loads(path.read_text(encoding="utf-8"))
        schemas[path.as_uri()] = schema
        if "$id" in schema:
            schemas[schema["$id"]] = schema
    return schemas


def faults(validator, path):
    """Yields the faults of a file, each as a line."""
    try:
        value = json.loads(path.read_text(encoding="utf-8"), parse_constant=refuse_constant)
    except ValueError as error:
        yield f"{path}: {error}"
        return
    for error in validator.iter_errors(value):
        place = "/".join(str(part) for part in error.absolute_path)
        yield f"{path}: {place}: {error.message[:300]}"


def refuse_constant(word):
    raise ValueError(f"{word} is no JSON")


def main():
    folder, files = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    try:
        import jsonschema
    except ImportError:
        print("python3-jsonschema is missing")
        return MISSING
    if not (folder / "beer.json").is_file():
        print(f"{folder} holds no schema")
        return MISSING
    schemas = load_schemas(folder)
    root = (folder / "beer.json").as_uri()
    resolver = jsonschema.RefResolver(root, schemas[root], store=schemas)
    validator = jsonschema.Draft7Validator(schemas[root], resolver=resolver)
    found = [fault for file in files for fault in faults(validator, pathlib.Path(file))]
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
