"""What tarnwick-host writes is what its schemas and docs/run-file.md describe. Usage: schemas.py HOST DOCS FAULTY-DISK"""

import contextlib
import copy
import json
import os
import pathlib
import pty
import re
import signal
import subprocess
import sys
import tempfile

import jsonschema

host, docs, faulty_disk = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]
NAMES = ("run-file.schema.json", "run-output.schema.json", "check-output.schema.json")
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


def check(status, *arguments):
    done = subprocess.run([host, "check", "--json", *map(str, arguments)], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    assert done.returncode == status, f"status {done.returncode} instead of {status}: {done.stderr}"
    return json.loads(done.stdout) if done.stdout else None


def stopped_check(folder):
    """Of a check that was stopped between its two readings."""
    screen, terminal = pty.openpty()
    words = [host, "check", "--json", "--size", "1M", "--again", "86400", folder]
    with subprocess.Popen(words, stdout=subprocess.PIPE, stderr=terminal) as process:
        os.close(terminal)
        shown = b""
        while b"Waiting" not in shown:
            shown += os.read(screen, 4096)
        process.send_signal(signal.SIGTERM)
        with contextlib.suppress(OSError):
            while os.read(screen, 4096):
                pass
        printed = process.stdout.read()
        assert process.wait() == 130, f"status {process.returncode}"
    os.close(screen)
    return json.loads(printed)


@contextlib.contextmanager
def bad_volume(folder):
    """A file system on a disk of 64 MiB that keeps 16; None where this machine forbids it."""
    point = folder / "bad"
    point.mkdir()
    with subprocess.Popen([faulty_disk, str(64 << 20), "wrap", str(16 << 20)], stdout=subprocess.PIPE, text=True) as disk:
        device = subprocess.run(["losetup", "--find", "--show", disk.stdout.readline().strip()], capture_output=True, text=True)
        device = device.stdout.strip()
        is_mounted = bool(device) and not any(
            subprocess.run(command, capture_output=True).returncode
            for command in (["mkfs.ext4", "-q", "-J", "size=4", device], ["mount", device, point]))
        try:
            if is_mounted:
                disk.send_signal(signal.SIGUSR1)
                disk.stdout.readline()
            yield point if is_mounted else None
        finally:
            if is_mounted:
                subprocess.run(["umount", "--lazy", point], check=True)
            if device:
                subprocess.run(["losetup", "--detach", device], check=True)
            disk.terminate()


def checks(folder):
    """(outcome, value) of real capacity checks."""
    yield "good or unproven", check(0, "--size", "3M", "--again", 0, folder)
    yield "unproven", check(0, "--size", "8M", "--quick", folder)
    yield "unproven", stopped_check(folder)
    assert check(1, "--size", "1000000T", folder) is None, "a failed check prints an object"
    with contextlib.suppress(FileNotFoundError), bad_volume(folder) as volume:
        if not volume:
            print("left out: this machine allows no volume with faults")
            return
        yield "bad", check(3, "--leave-free", 0, volume)
        yield "bad", check(3, "--leave-free", 0, "--quick", volume)


def main():
    strict = {name: closed(schema) for name, schema in published.items()}
    for name, schema in published.items():
        jsonschema.Draft202012Validator.check_schema(schema)
    found = []
    with tempfile.TemporaryDirectory(prefix="schemas-") as folder:
        for variable in ("HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            os.environ[variable] = folder
        checked = list(outputs(pathlib.Path(folder)))
        for outcome, value in checks(pathlib.Path(folder)):
            checked.append((NAMES[2], value))
            if value["verdict"] not in outcome:
                found.append(f"a check is {value['verdict']}, and should be {outcome}")
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
