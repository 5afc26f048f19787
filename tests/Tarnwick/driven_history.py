#!/usr/bin/python3
"""The stored runs across starts of the program. Usage: driven_history.py PROGRAM"""

import pathlib
import re
import subprocess
import sys

import driver
import saved_runs
from driver import check
from driven_window import choose_small_size, nothing_left, start

SAVED = ["Old drive", "Backup", "media"]


def rows(window):
    """Titles of the history's rows from top to bottom."""
    return [node.get_name().removeprefix("Delete ") for node, _ in window.nodes()
            if node.get_description() == "Delete this run" and window.shows(node, "SHOWING")]


def measures_and_names(program, folder):
    with driver.Window(program, folder) as window:
        window.until("the saved runs", lambda: rows(window) == SAVED)
        heard = window.listen()
        choose_small_size(window)
        start(window, folder)
        window.find("Complete", "status bar")
        for what in ("Running…", "Complete"):
            window.until(f"{what} told", lambda: what in heard)
        check(any(" %" in words for words in heard), f"no progress announced: {heard}")
        volume = window.find("Volume").get_description().split(",")[0]
        window.press(volume, "push button")
        window.find("Report title", "text")
        window.keys("ctrl+a")
        window.type("  First run  \n")
        window.press("Collapse")
        window.find("First run", "push button")
        window.press("Compare")
        window.press("First run", "check box")
        window.find("Compare 1")
        window.press("Cancel")
        window.context_menu("First run")
        window.find("Delete Run", "menu item")
        window.keys("Escape")
        window.gone("Delete Run", "menu item")
        window.quits()


def finds_opens_and_deletes(program):
    with driver.Window(program) as window:
        window.until("the run of before", lambda: rows(window) == ["First run", *SAVED])
        window.grab("First run")
        window.keys("Return")
        window.find("Throughput over time", "chart")
        window.grab("Throughput over time", "chart")
        told = lambda: window.find("Throughput over time", "chart").get_description()
        window.keys("Right", "Escape", "Left")
        last = window.until("the last rate told", lambda: re.match(r"[\d.]+s: ", told()) and told())
        if isinstance(driver.display, driver.X11):  # elsewhere nobody tells where on the screen the chart is
            window.hover("Throughput over time", "chart")  # a pointer that rests there does not hold the line
            at_pointer = window.until("the rate at the pointer", lambda: told() != last and told())
            window.keys("Right")
            window.until("the next rate", lambda: told() != at_pointer)
        window.grab("First run", "push button")
        check(window.until("the focus", window.focused) == "First run", "the focus left the run that was opened")
        window.context_menu("First run")
        window.press("Rename Report…")
        window.find("Report title", "text")
        window.type("lost")
        window.keys("Escape")
        window.gone("Report title", "text")
        window.press("Collapse")
        window.until("the row", lambda: rows(window) == ["First run", *SAVED])
        window.grab("Backup")
        window.keys("ctrl+c")
        window.find("Figures copied")
        window.keys("F2")
        window.find("Report title", "text")
        badge = window.find("Complete", "label").get_extents(window.atspi.CoordType.SCREEN)
        window.type("Second")
        window.keys("Return")
        window.until("the title", lambda: window.focused() == "Second")
        moved = window.find("Complete", "label").get_extents(window.atspi.CoordType.SCREEN).x - badge.x
        check(abs(moved) < 20, f"the badge moves by {moved} pixels when the title is edited")
        window.keys("Delete")
        window.find("Run deleted")
        window.until("its end", lambda: rows(window) == ["First run", "Old drive", "media"])
        window.keys("ctrl+z")
        window.gone("Run deleted")
        window.find("Second", "push button")
        window.grab("Old drive")
        window.keys("Delete")
        window.until("the focus on the next run", lambda: window.focused() == "Second")
        window.grab("Undo")
        window.keys("Return")
        window.gone("Run deleted")
        window.until("the focus back from the note", lambda: window.focused() == "Second")
        window.context_menu("Second")
        window.press("Delete Run", "menu item")
        window.until("its end", lambda: rows(window) == ["First run", "Old drive", "media"])
        window.gone("Run deleted")
        window.quits()


def compares_and_clears(program):
    with driver.Window(program) as window:
        window.press("Compare")
        window.find("Select runs to compare")
        check(not window.enabled("Compare 0"), "Compare is enabled for no runs")
        for name, count in (("media", 1), ("Old drive", 2), ("media", 1), ("First run", 2)):
            window.press(name, "check box")
            check(window.enabled(f"Compare {count}") == (count > 1), f"Compare is wrong for {count} runs")
        check(rows(window) == [], "a run can be deleted while runs are selected")
        window.press("Cancel")
        window.press("Clear")
        window.find("Delete all saved runs?")
        window.keys("Escape")
        window.gone("Delete all saved runs?")
        check(len(rows(window)) == 3, "Escape deleted the runs")
        window.press("Clear")
        window.press("Delete All")
        window.gone("Previous runs")
        window.find("3 runs deleted")
        window.press("Undo")
        window.until("all runs", lambda: len(rows(window)) == 3)
        window.press("Clear")
        window.press("Delete All")
        window.gone("Previous runs")
        window.quits()


def follows_the_terminal(program, folder):
    """What tarnwick-host adds and deletes is there as soon as one comes back to the window."""
    def host(*words):
        return subprocess.run([pathlib.Path(program).with_name("tarnwick-host"), *words], check=True, stdout=subprocess.PIPE, text=True).stdout

    with driver.Window(program) as window:
        window.find("Choose a volume to begin")
        host("run", "--tests", "fileOps", "--file-ops", "1", "--keep", str(folder))
        window.keys("ctrl+comma")
        driver.focus("Settings")
        window.until("the run", lambda: len(rows(window)) == 1)
        host("history", "delete", host("history").splitlines()[1].split()[0])
        driver.focus(driver.MAIN)
        window.until("its end", lambda: rows(window) == [])
        window.quits()


if __name__ == "__main__":
    driver.enter_display()
    saved_runs.lay_down([saved_runs.run(0, customTitle="Old drive"), saved_runs.run(1), saved_runs.run(2)])
    with driver.fast_folder() as name:
        measures_and_names(sys.argv[1], pathlib.Path(name))
        nothing_left(pathlib.Path(name))
        finds_opens_and_deletes(sys.argv[1])
        compares_and_clears(sys.argv[1])
        follows_the_terminal(sys.argv[1], name)
