#!/usr/bin/python3
"""The window on a file system that accepts requests and never answers. Usage: driven_hanging.py PROGRAM DRAG-SOURCE"""

import ctypes
import os
import pathlib
import signal
import struct
import subprocess
import sys
import tempfile
import threading

import driver
from driven_requests import call
from driver import check

INIT = 26  # FUSE_INIT of linux/fuse.h
SYSTEM = ctypes.CDLL(None, use_errno=True)


class DeafFileSystem:
    """A FUSE file system whose program reads requests and never answers: no signal ends the waiting process."""

    def __init__(self, point):
        self.point = str(point)
        self.requests = os.open("/dev/fuse", os.O_RDWR)
        self.asked = threading.Event()
        options = f"fd={self.requests},rootmode=40000,user_id=0,group_id=0,allow_other"
        if SYSTEM.mount(b"server:/", self.point.encode(), b"fuse.sshfs", 0, options.encode()) != 0:
            raise PermissionError(os.strerror(ctypes.get_errno()))
        threading.Thread(target=self._take, daemon=True).start()

    def _take(self):
        while True:
            try:
                _, opcode, unique = struct.unpack_from("<IIQ", os.read(self.requests, 200000))
            except OSError:  # unmounted
                return
            if opcode != INIT:
                self.asked.set()
                continue
            body = struct.pack("<IIIIHHI", 7, 31, 0, 0, 0, 0, 4096).ljust(64, b"\0")
            os.write(self.requests, struct.pack("<IiQ", 16 + len(body), 0, unique) + body)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        SYSTEM.umount2(self.point.encode(), 1)  # MNT_FORCE: waiting requests fail
        SYSTEM.umount2(self.point.encode(), 2)


def ends(window, deaf, way):
    check(deaf.asked.wait(driver.GUARD_SECONDS), "no request was sent")
    ended = way(window)
    check(ended == (0, ""), f"it ends with {ended}")


def by_signal(window):
    return window.end(signal.SIGTERM)


def by_keyboard(window):
    window.keys("ctrl+q")
    return window.end()


def starts_with_it(program, deaf):
    for way in (by_signal, by_keyboard):
        with driver.Window(program, deaf.point) as window:
            window.find("Ready to benchmark")
            ends(window, deaf, way)


def chooses_it_in_the_menu(program, deaf):
    with driver.Window(program) as window:
        window.press("Volume")
        window.press("deaf  —  SSHFS")
        window.find("Ready to benchmark")
        ends(window, deaf, by_signal)


def is_handed_it_and_asks_for_another(program, deaf):
    with driver.Window(program) as window:
        check(subprocess.run([program, deaf.point]).returncode == 0, "a second start does not hand over")
        window.find("Ready to benchmark")
        check(call("ActivateAction", "choose-folder", "[]"), "no dialog")
        driver.focus("^Choose a folder")
        subprocess.run(["xdotool", "key", "Escape"], check=True)
        ends(window, deaf, by_signal)


def ends_a_run_on_it(program, deaf):
    for way in (by_signal, by_keyboard):
        with driver.Window(program, deaf.point) as window:
            window.find("Ready to benchmark")
            window.press("Run Benchmark")
            window.find("Running…", "status bar")
            ends(window, deaf, way)
    with driver.Window(program, deaf.point) as window:
        window.find("Ready to benchmark")
        window.press("Run Benchmark")
        window.press("Stop")
        window.find("Ready", "status bar")
        ends(window, deaf, by_signal)


if __name__ == "__main__":
    driver.enter_display()
    with tempfile.TemporaryDirectory(prefix="ondel-test-") as name:
        for case in (starts_with_it, chooses_it_in_the_menu, is_handed_it_and_asks_for_another, ends_a_run_on_it):
            point = pathlib.Path(name, "deaf")
            point.mkdir(exist_ok=True)
            try:
                deaf = DeafFileSystem(point)
            except OSError as problem:
                print("skipped, no right to FUSE:", problem)
                sys.exit(driver.SKIP)
            with deaf:
                print(case.__name__.replace("_", " "), flush=True)
                case(sys.argv[1], deaf)
