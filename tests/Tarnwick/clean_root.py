#!/usr/bin/python3
"""The installed package in a fresh root: a benchmark, a run file opened through the desktop, the end.
Usage: clean_root.py ROOT, as root. Display, buses and the person stay outside; in the root is only what is installed there."""

import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

import driven_window
import driver


def entrance(root, program, path):
    """Writes a program that runs one of the root's in there, in the process that was started."""
    mounts = " && ".join(f"mount --bind {where} {shlex.quote(str(root))}{where}" for where in ("/tmp", "/dev", "/dev/shm", "/sys"))
    inner = f"{mounts} && mount -t proc proc {shlex.quote(str(root))}/proc && exec chroot {shlex.quote(str(root))} {program} \"$@\""
    path.write_text(f"#!/bin/sh\nexec unshare --mount sh -c {shlex.quote(inner)} tarnwick \"$@\"\n")
    path.chmod(0o755)
    return path


def desktop_data(root, folder):
    """The root's entries and types as a desktop knows them."""
    for name in ("applications", "mime"):
        shutil.copytree(root / "usr/share" / name, folder / name)
    subprocess.run(["update-desktop-database", folder / "applications"], check=True)
    subprocess.run(["update-mime-database", folder / "mime"], check=True, stdout=subprocess.DEVNULL)


def used_as_by_a_person(root, folder, tools):
    host = entrance(root, "/usr/bin/tarnwick-host", tools / "tarnwick-host")
    words = subprocess.run([host, "run", "--size", "64M", "--handoff", folder], check=True, capture_output=True, text=True).stdout
    run_file = words.splitlines()[-1]
    driven_window.nothing_left(folder)

    window_program = entrance(root, "/usr/bin/tarnwick", tools / "tarnwick")
    data = tools / "share"
    desktop_data(root, data)
    desktop = os.environ | {"PATH": f"{tools}:{os.environ['PATH']}", "XDG_DATA_DIRS": str(data)}
    with driver.Window(window_program, folder) as window:
        window.find("Ready to benchmark")
        driven_window.choose_small_size(window)
        driven_window.start(window, folder)
        window.find("Complete", "status bar")
        driven_window.nothing_left(folder)

        figures = lambda: [node.get_name() for node, _ in window.nodes() if node.get_name().startswith("Sequential Write:")]
        before = window.until("the run's figures", figures)
        subprocess.run(["gio", "open", run_file], env=desktop, check=True)
        window.until("the figures of the opened run", lambda: figures() and figures() != before)
        window.keys("ctrl+q")
        status = window.end()
        driven_window.check(status == (0, ""), f"ended with {status}")
    driven_window.nothing_left(folder)


if __name__ == "__main__":
    driver.enter_display()
    with driver.fast_folder() as folder, tempfile.TemporaryDirectory(prefix="ondel-test-") as tools:
        used_as_by_a_person(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(folder), pathlib.Path(tools))
    print("Used in the fresh root: a run in the terminal, one in the window, a run file opened, the end. Nothing is left.")
