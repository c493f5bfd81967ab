"""Validates every JSON document in a folder against the JSON Schema of the document form.

    /usr/bin/python3 validate_json_schema.py <schema.json> <folder>

Exits 1, naming each failing document and the first error in it, when any document fails.
Needs Debian's python3-jsonschema (draft 2020-12)."""

import json
import pathlib
import sys

from jsonschema import Draft202012Validator


def main(schema_path, folder):
    schema = json.loads(pathlib.Path(schema_path).read_text(encoding="utf-8"))
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    documents = sorted(pathlib.Path(folder).glob("*.json"))
    if not documents:
        print(f"no documents in {folder}", file=sys.stderr)
        return 1
    failed = 0
    for document in documents:
        error = next(iter(validator.iter_errors(json.loads(document.read_text(encoding="utf-8")))), None)
        if error is not None:
            failed += 1
            print(f"{document.name}: /{'/'.join(str(part) for part in error.absolute_path)}: {error.message[:300]}",
                  file=sys.stderr)
    print(f"{len(documents) - failed} of {len(documents)} documents valid")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
