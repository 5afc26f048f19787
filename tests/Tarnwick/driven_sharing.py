#!/usr/bin/python3
"""Comparing runs and sharing images in the real window. Usage: driven_sharing.py PROGRAM DRAG-SOURCE [CASE]..."""

import csv
import json
import os
import pathlib
import subprocess
import sys

import driver
import saved_runs
from driver import check

TOOLS = ("xdg-open", "xdg-email")


def share(window, choice):
    window.press("Share")
    window.press(choice, "menu item")


def called(home, tool):
    """The arguments of the last call of a desktop tool, or None. Removes the record."""
    record = home / tool
    if not record.exists() or not record.read_text().endswith("\n"):
        return None
    words = record.read_text()
    record.unlink()
    return words.strip()


def compares_and_shares(program, home, folder):
    with driver.Window(program, folder, env={"PATH": f"{home / 'bin'}:{os.environ['PATH']}"}) as window:
        window.find("Ready to benchmark")
        window.press("Compare")
        for name in ("Samsung SSD 990 PRO", "media"):
            window.press(name, "check box")
        window.press("Compare 2")
        window.find("Comparing 2 runs")
        window.find("Write, NVMe Server: 104 MB/s, reference")
        window.find("Write, Samsung SSD 990 PRO: 6,400 MB/s, +6,042 %")
        window.press("Differences from")
        window.press(next(node.get_name() for node, _ in window.nodes() if node.get_name().startswith("Samsung SSD 990 PRO · ")
                          and driver.role_of(node) == "menu item"))
        window.find("Write, NVMe Server: 104 MB/s, −98 %")
        check(window.look("Ready to benchmark") is None, "a comparison does not replace the pane")

        window.press("Show in Folder", "push button")
        window.until("the folder under test", lambda: called(home, "xdg-open") == str(folder))
        share(window, "Copy Image")
        window.find("Image copied")
        share(window, "Show in Folder")
        where = pathlib.Path(window.until("the folder", lambda: called(home, "xdg-open")))
        image = where / "Ondel Tarnwick — Comparison.png"
        share(window, "Send by Email…")
        words = window.until("the message", lambda: called(home, "xdg-email"))
        check(words == f"--utf8 --subject {image.stem} --attach {image}", words)
        check(where.stat().st_mode & 0o77 == 0 and [image] == list(where.iterdir()), f"{where} is open to others")

        share(window, "Save As…")
        driver.focus("Save As")
        kept = home / "kept.png"
        driver.display.type(str(kept))
        driver.display.press("Return")
        window.find("Saved as “kept.png”")
        check(kept.read_bytes() == image.read_bytes(), "the saved image differs")

        window.press("Run Benchmark")
        window.find("Running…", "status bar")
        window.find("Comparing 2 runs")
        window.press("Stop")
        window.find("Ready", "status bar")
        window.press("Close")
        window.gone("Comparing 2 runs")

        window.press("SD card")
        share(window, "Copy Image")
        window.find("Image copied")
        check((where / "Ondel Tarnwick — SD card.png").exists(), "no report image")
        window.quits()


def exports_runs(program, home, _folder):
    """One run by its button and its context menu, all by the menu bar."""
    def saved(name):
        driver.focus("Save As")
        driver.display.type(str(home / name))
        driver.display.press("Return")
        window.find(f"Saved as “{name}”")
        return (home / name).read_bytes().decode()

    with driver.Window(program) as window:
        window.press("SD card")
        for choice, outcome in (("Copy as Text", "Text copied"), ("Copy as Markdown Table", "Table copied")):
            share(window, choice)
            window.find(outcome)
        share(window, "Save Run File…")
        check(json.loads(saved("one.tarnwickrun"))["volumeName"] == "SD card", "another run")
        window.context_menu("Backup")
        window.press("Export CSV…", "menu item")
        saved("one.csv")
        check(saved_names(home / "one.csv") == ["Backup"], "other runs")
        window.press("History", "menu item")
        window.press("Copy as Text", "menu item")
        window.find("Text copied")
        window.press("History", "menu item")
        window.press("Export CSV…", "menu item")
        saved("all.csv")
        names = [volume[0] for volume in saved_runs.VOLUMES]
        check(saved_names(home / "all.csv") == names, "not the whole history")
        window.press("History", "menu item")
        window.press("Save Runs…", "menu item")
        check([run["volumeName"] for run in json.loads(saved("all.json"))] == names, "not the whole history")
        window.quits()


def saved_names(table):
    with open(table, encoding="utf-8", newline="") as lines:
        return [line["volumeName"] for line in csv.DictReader(lines)]


def draws_alike_in_both_renderers(program, home, folder):
    """A window with OpenGL draws its images with it as well, repeatedly, and they look the same."""
    image = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "tools.ondel.tarnwick", "Ondel Tarnwick — SD card.png")
    image.rename(home / "software.png")
    with driver.Window(program, env={"QSG_RHI_BACKEND": "opengl", "LIBGL_ALWAYS_SOFTWARE": "1"}) as window:
        window.press("SD card")
        for _ in range(3):
            share(window, "Copy Image")
            window.find("Image copied")
        compared = subprocess.run(["compare", "-metric", "RMSE", home / "software.png", image, "null:"], capture_output=True, text=True)
        difference = float(compared.stderr.split("(")[1].rstrip(")"))
        check(0 < difference < 0.02, f"they differ by {compared.stderr}")
        window.quits()


def says_what_cannot_be_done(program, home, _folder):
    (home / "bin" / "xdg-open").write_text("#!/bin/sh\nexit 3\n")
    (home / "bin" / "xdg-email").unlink()
    with driver.Window(program, env={"PATH": str(home / "bin"), "TMPDIR": "/nowhere"}) as window:
        window.press("SD card")
        share(window, "Show in Folder")
        window.find("The folder couldn't be opened.")
        share(window, "Send by Email…")
        window.find("No mail program could be opened.")
        for image in pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "tools.ondel.tarnwick").iterdir():
            image.unlink()
        window.press("Share")
        window.find("Copy Image", "menu item")
        os.chmod(os.environ["XDG_RUNTIME_DIR"] + "/tools.ondel.tarnwick", 0o755)  # no longer private, and there is no other folder
        window.keys("Escape")
        window.gone("Copy Image", "menu item")
        window.press("Share")
        window.settled()
        check(window.look("Copy Image", "menu item") is None, "a menu without an image")
        window.quits()


if __name__ == "__main__":
    driver.enter_display()
    program, _source, *only = sys.argv[1:]
    home = pathlib.Path(os.environ["HOME"])
    (home / "bin").mkdir()
    for tool in TOOLS:
        script = home / "bin" / tool
        script.write_text(f'#!/bin/sh\necho "$@" > "{home}/{tool}"\n')
        script.chmod(0o755)
    saved_runs.lay_down([saved_runs.run(i) for i in range(4)])
    with driver.fast_folder() as name:
        for case in driver.chosen((compares_and_shares, exports_runs, draws_alike_in_both_renderers, says_what_cannot_be_done), only):
            case(program, home, pathlib.Path(name))
