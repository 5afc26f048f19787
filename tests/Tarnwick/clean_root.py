#!/usr/bin/python3
"""The installed packages in a fresh root: a benchmark in the terminal and one in the window, a run file handed over, the end.
Usage: clean_root.py ROOT [terminal], as root; "terminal" leaves the window out. Display, buses and input stay outside of the
root."""

import pathlib
import subprocess
import sys
import tempfile

import driven_window
import driver
from installed_starts import entrance


def measures(root, folder, tools):
    """A run in the terminal. Returns its run file."""
    host = entrance(root, "/usr/bin/tarnwick-host", tools / "tarnwick-host")
    words = subprocess.run([host, "run", "--size", "64M", "--handoff", folder], check=True, capture_output=True, text=True).stdout
    driven_window.nothing_left(folder)
    return words.splitlines()[-1]


def tells_what_is_missing(root, tools, run_file):
    host = entrance(root, "/usr/bin/tarnwick-host", tools / "tarnwick-host")
    refused = subprocess.run([host, "card", run_file], capture_output=True, text=True)
    driver.check(refused.returncode == 1 and "comes with the window" in refused.stderr, f"no picture: {refused}")


def shows(root, folder, tools, run_file):
    """A run in the window, which then is handed the run of the terminal."""
    program = entrance(root, "/usr/bin/tarnwick", tools / "tarnwick")
    with driver.Window(program, folder) as window:
        window.find("Ready to benchmark")
        driven_window.choose_small_size(window)
        driven_window.start(window, folder)
        window.find("Complete", "status bar")
        driven_window.nothing_left(folder)

        figures = lambda: [node.get_name() for node, _ in window.nodes() if node.get_name().startswith("Sequential Write:")]
        before = window.until("the run's figures", figures)
        subprocess.run([program, run_file], check=True)
        window.until("the figures of the opened run", lambda: figures() and figures() != before)
        window.keys("ctrl+q")
        status = window.end()
        driver.check(status == (0, ""), f"ended with {status}")
    driven_window.nothing_left(folder)


if __name__ == "__main__":
    driver.enter_display()
    with driver.fast_folder() as folder, tempfile.TemporaryDirectory(prefix="ondel-test-") as tools:
        places = [pathlib.Path(place).resolve() for place in (sys.argv[1], folder, tools)]
        run_file = measures(*places)
        print("Used in the fresh root: a run in the terminal. Nothing is left.")
        if sys.argv[2:] == ["terminal"]:
            tells_what_is_missing(places[0], places[2], run_file)
        else:
            shows(*places, run_file)
            print("Used in the fresh root: a run in the window, a run file handed over, the end. Nothing is left.")
