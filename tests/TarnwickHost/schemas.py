"""What tarnwick-host writes is what its schemas and docs/run-file.md describe. Usage: schemas.py HOST DOCS"""

import copy
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import jsonschema

host, docs = sys.argv[1], pathlib.Path(sys.argv[2])
NAMES = ("run-file.schema.json", "run-output.schema.json")
published = {name: json.loads((docs / name).read_text()) for name in NAMES}


def parts(schema):
    """Each object of a schema that describes keys."""
    if isinstance(schema, dict):
        if "properties" in schema:
            yield schema
        for value in schema.values():
            yield from parts(value)
    elif isinstance(schema, list):
        for value in schema:
            yield from parts(value)


def closed(schema):
    """The schema without room for keys that it does not name."""
    schema = copy.deepcopy(schema)
    for part in list(parts(schema)):
        part["additionalProperties"] = False
    return schema


def faults(value, name, schemas):
    resolver = jsonschema.RefResolver(name, schemas[name], store=schemas)
    validator = jsonschema.Draft202012Validator(schemas[name], resolver=resolver)
    return [f"{name}: {'.'.join(map(str, fault.absolute_path))}: {fault.message[:200]}" for fault in validator.iter_errors(value)]


def run(folder, *arguments):
    words = [host, *map(str, arguments)]
    return subprocess.run(words, cwd=folder, stdout=subprocess.PIPE, check=True).stdout


def outputs(folder):
    """(schema, value) of real runs."""
    small = ("run", "--json", "--size", "3M", "--random-ops", 300, "--file-ops", 20)
    whole = json.loads(run(folder, *small, "--sample-interval", 0, "--handoff", "--keep", "--output", "a.tarnwickrun", "."))
    yield NAMES[1], whole
    yield NAMES[1], json.loads(run(folder, *small, "--tests", "sequentialRead", "--cached", "--write-block", -7, folder))
    yield NAMES[1], json.loads(run(folder, *small[:2], "--tests", "fileOps", "--size", "fill", "--leave-free", 1 << 60, folder))
    for file in (whole["handoffFile"], folder / "a.tarnwickrun"):
        yield NAMES[0], json.loads(pathlib.Path(file).read_text())
    for one in json.loads(run(folder, "history", "show", "--format", "json")):
        yield NAMES[0], one


def main():
    strict = {name: closed(schema) for name, schema in published.items()}
    for name, schema in published.items():
        jsonschema.Draft202012Validator.check_schema(schema)
    found = []
    with tempfile.TemporaryDirectory(prefix="schemas-") as folder:
        for variable in ("HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            os.environ[variable] = folder
        checked = list(outputs(pathlib.Path(folder)))
    for name, value in checked:
        found += faults(value, name, strict)
        later = {**value, "addedLater": 1}
        found += faults(later, name, published) # others must not stumble over new keys
        if not faults(later, name, strict):
            found.append(f"{name}: a key that nobody described went unnoticed")
    page = set(re.findall(r"`(\w+)`", (docs / "run-file.md").read_text()))
    keys = {key for schema in published.values() for part in parts(schema) for key in part["properties"]}
    found += [f"run-file.md does not tell of {key}" for key in sorted(keys - page)]
    print(len(checked), "texts checked,", len(keys), "keys")
    return "\n".join(found) or None


sys.exit(main())
