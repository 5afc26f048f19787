#!/usr/bin/python3
"""The capacity check in the window. Usage: driven_capacity.py PROGRAM DRAG-SOURCE [CASE]..."""

import contextlib
import ctypes
import os
import pathlib
import subprocess
import sys

import driver
import saved_runs
from driven_requests import child, desktop_of, hears_of
from driver import check

SYSTEM = ctypes.CDLL(None, use_errno=True)


@contextlib.contextmanager
def small_volume(folder, mebibytes):
    """A file system in memory, mounted in the folder; None where this machine forbids that."""
    point = folder / "small volume"
    point.mkdir()
    mounted = SYSTEM.mount(b"none", os.fsencode(point), b"tmpfs", 0, f"size={mebibytes}m".encode()) == 0
    try:
        yield point if mounted else None
    finally:
        if mounted:
            SYSTEM.umount2(os.fsencode(point), 2)  # MNT_DETACH
        point.rmdir()


def open_pane(window):
    window.press("Run", "menu item")
    window.press("Check Capacity…", "menu item")
    window.find("Start Check", "push button")


def sentences(window, words):
    return [node for node, _ in window.nodes() if window.shows(node, "SHOWING") and words in node.get_name()]


def checks_a_small_volume(program, folder):
    saved_runs.lay_down([])
    with small_volume(folder, 192) as volume:
        if not volume:
            print("  left out: this machine allows no mount")
            return
        with driver.Window(program, volume) as window:
            open_pane(window)
            check(window.enabled("Run Benchmark"), "a run cannot begin before a check")
            window.press("Start Check")
            window.find("Checking…", "status bar")
            window.until("the finding", lambda: sentences(window, "of free space hold what was written."))
            window.find("Ready", "status bar")
            window.find("Map of the checked space", "chart")
            rows = [node.get_name() for node, _ in window.nodes() if node.get_name().startswith("0 B to ")]
            check(rows and rows[0].endswith(": As written"), f"the map's first row tells {rows}")
            window.find("This volume keeps its files in memory: no disk was checked.")
            check(not list(volume.iterdir()), f"left behind: {list(volume.iterdir())}")
            window.press("Copy")
            window.find("Text copied")
            window.press("New Check")
            check(any("hold what was written" in node.get_description() for node, _ in window.nodes()), "it is not in the list")
            window.press("Close")
            window.find("Ready to benchmark")
            window.quits()


def tells_the_desktop(program, folder, source):
    """It keeps the machine awake, and tells its finding behind other windows."""
    with small_volume(folder, 900) as volume, desktop_of(2) as desktop, child(source, stdout=subprocess.DEVNULL):
        if not volume:
            print("  left out: this machine allows no mount")
            return
        told = hears_of(desktop)
        told("ready")
        with driver.Window(program, volume) as window:
            open_pane(window)
            driver.focus("Drag from here")
            window.press("Start Check")
            told("awake 12 A capacity check is running")
            told("asleep", "notice Capacity check complete: All ")
            window.quits()


def stops(program, folder):
    """By Escape, while it writes; and the end of the program ends it in order."""
    with small_volume(folder, 900) as volume:
        if not volume:
            print("  left out: this machine allows no mount")
            return
        with driver.Window(program, volume) as window:
            open_pane(window)
            window.press("Read a second time")
            window.press("After 10 min", "menu item")
            window.press("Start Check")
            window.find("Checking…", "status bar")
            check(not window.look("Run Benchmark", "push button"), "a run is offered beside a check")
            check(not window.enabled("Volume"), "another volume can be chosen during a check")
            window.until("the wait", lambda: sentences(window, "Waiting"))
            window.until("the share in the title", lambda: driver.windows("^66 % – Ondel Tarnwick$"))
            window.until("rows that came back", lambda: sentences(window, ": As written"))
            window.keys("Escape")
            window.until("the end", lambda: sentences(window, "The check was stopped when "))
            check(not list(volume.iterdir()), f"left behind: {list(volume.iterdir())}")
            window.press("New Check")
            window.press("Start Check")
            window.find("Checking…", "status bar")
            window.quits()
            check(not list(volume.iterdir()), f"left behind at its end: {list(volume.iterdir())}")


def saves_the_report(window, folder, sentence):
    report = folder / "report.txt"
    window.press("Save Report…")
    driver.focus("Save As")
    driver.display.type(str(report))
    driver.display.press("Return")
    window.find("Saved as “report.txt”")
    check(report.read_text(encoding="utf-8").startswith(sentence), f"the report begins otherwise: {report.read_text()}")
    report.unlink()


def shows_former_checks(program, folder):
    saved_runs.lay_down_checks([saved_runs.capacity_check(kind) for kind in ("good", "false", "changed", "sampled")])
    told = {"All 118.0 GiB of free space hold what was written.": None,
            "This volume claims 128 GB, but keeps only the first 31.4 GB.": "what was written at 0 B came back.",
            "4 blocks did not come back as they were written, the first at 41.2 GiB.": "5 bits were flipped.",
            "Samples all over 118.0 GiB of free space hold what was written, which is no proof.": None}
    with driver.fast_folder() as target, driver.Window(program, target) as window:
        window.resize(1180, 1300)
        window.press("Volume")
        window.press("Check Capacity…", "menu item")
        window.find("Former checks")
        for sentence, place in told.items():
            row = window.until(sentence, lambda: [node for node, _ in window.nodes() if node.get_description() == sentence])[0]
            row.do_action(window.actions(row).index("Press"))
            window.find(sentence, "heading")
            check(not place or sentences(window, place), f"{place!r} is missing")
            check(sentences(window, "What no check can tell"), "the limits are missing")
            if place == "5 bits were flipped.":
                saves_the_report(window, folder, "4 blocks did not come back as they were written")
            window.press("New Check")
        window.grab("Close")
        window.keys("Return")
        window.find("Ready to benchmark")
        window.quits()


if __name__ == "__main__":
    driver.enter_display(1400, 1400)
    tarnwick, source, *only = sys.argv[1:]
    with driver.fast_folder() as name:
        for case in driver.chosen((checks_a_small_volume, tells_the_desktop, stops, shows_former_checks), only):
            case(tarnwick, pathlib.Path(name), *([source] if case is tells_the_desktop else []))
