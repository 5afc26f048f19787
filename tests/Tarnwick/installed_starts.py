#!/usr/bin/python3
"""The installed package, started in each way that a desktop has, without an open window.
Usage: installed_starts.py ROOT, as root. ROOT is a Debian with the package, a message bus and gio; display and
accessibility stay outside."""

import contextlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

import driver
import saved_runs
from driven_requests import NAME, OBJECT, run_file, shows_run
from driver import check



def entrance(root, program, path):
    """Writes a program that runs one of the root's inside of the root, in the same process."""
    mounts = " && ".join(f"mount --bind {where} {shlex.quote(str(root))}{where}" for where in ("/tmp", "/dev", "/dev/shm", "/sys"))
    inner = f"{mounts} && mount -t proc proc {shlex.quote(str(root))}/proc && exec chroot {shlex.quote(str(root))} {program} \"$@\""
    path.write_text(f"#!/bin/sh\nexec unshare --mount sh -c {shlex.quote(inner)} {path.name} \"$@\"\n")
    path.chmod(0o755)
    return path


@contextlib.contextmanager
def bus_in(root, tools):
    """The session bus of the root, which starts programs inside of it. Returns the environment of its clients."""
    configuration = driver.bus_configuration(tools, "/usr/share/dbus-1/services")
    daemon = entrance(root, "/usr/bin/dbus-daemon", tools / "dbus-daemon")
    with subprocess.Popen([daemon, f"--config-file={configuration}", "--nofork", "--print-address"], stdout=subprocess.PIPE,
                          text=True) as bus:
        env = os.environ | {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip()}
        try:
            with driver.accessibility(env | {"XDG_RUNTIME_DIR": str(tools)}) as address:
                os.environ["AT_SPI_BUS_ADDRESS"] = address
                yield env
        finally:
            bus.terminate()


def starts(root, folder, tools):
    gio, gdbus, gtk_launch = (entrance(root, f"/usr/bin/{name}", tools / name) for name in ("gio", "gdbus", "gtk-launch"))
    call = [gdbus, "call", "--session", "--dest", NAME, "--object-path", OBJECT, "--method"]
    url = run_file(folder, 1).as_uri()

    def waits(window):
        window.find("Choose a volume to begin")

    def has_the_folder(window):
        window.find("Ready to benchmark")

    def has_the_run(window):
        shows_run(window, 1)

    folder_entry = f"/usr/share/applications/zz-{NAME}.folder.desktop"
    file = folder / "1.tarnwickrun"
    ways = {
        "the desktop entry": ([gtk_launch, NAME], waits),
        "the desktop entry, with a run file": ([gtk_launch, NAME, file], has_the_run),
        "the folders' desktop entry": ([gio, "launch", folder_entry, folder], has_the_folder),
        "opening a run file": ([gio, "open", file], has_the_run),
        "Activate on the bus": ([*call, "org.freedesktop.Application.Activate", "{}"], waits),
        "Open on the bus": ([*call, "org.freedesktop.Application.Open", json.dumps([url]), "{}"], has_the_run)}
    with bus_in(root, tools) as env:
        for what, (command, has_begun) in ways.items():
            saved_runs.lay_down([])
            # Not a pipe, which a program started by the launcher would keep open.
            with open(tools / "words", "w+") as words:
                done = subprocess.run(command, env=env, stdout=words, stderr=words)
            try:
                check(done.returncode == 0, f"status {done.returncode}")
                with driver.Window(driver.Started()) as window:
                    has_begun(window)
                    check(len(driver.windows(driver.MAIN)) == 1, "more than one window")
                    window.terminate()
            except driver.Failure as failure:
                raise driver.Failure(f"{what}: {failure}; {(tools / 'words').read_text()}") from None
            print(f"Started by {what}", flush=True)


if __name__ == "__main__":
    driver.enter_display()
    with driver.fast_folder("ondel-test-") as folder, tempfile.TemporaryDirectory(prefix="ondel-test-") as tools:
        starts(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(folder), pathlib.Path(tools))
