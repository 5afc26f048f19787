#!/usr/bin/python3
"""A real benchmark in the real window. Usage: driven_window.py PROGRAM DRAG-SOURCE [CASE]..."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time

import driver
import saved_runs
from driver import check

LOG = pathlib.Path(os.environ.get("XDG_STATE_HOME", ""), "Ondel Tarnwick", "ondel.log")

TESTS = ["Sequential write", "Sequential read", "Random read (4 KiB)", "Random write (4 KiB)", "File operations"]


def choose_small_size(window):
    window.press("Size")
    window.press("1 GiB")
    window.gone("64 GiB")


def start(window, folder):
    """Presses the run button and returns when files are being written."""
    window.press("Run Benchmark")
    window.find("Running…", "status bar")
    window.until("the working folder", lambda: list(folder.glob(".ondel-analyzer-*/data.bin")))


def nothing_left(folder):
    left = sorted(path.name for path in folder.iterdir())
    check(not left, f"left behind: {left}")


def runs_to_the_end(program, folder):
    with driver.Window(program, folder) as window:
        window.find("Ready", "status bar")
        window.find("Ready to benchmark")
        choose_small_size(window)
        start(window, folder)

        check(not window.enabled("Volume"), "the volume can be changed during a run")
        window.until("progress", lambda: 0 < (window.progress(TESTS[0]) or 0) <= 100)
        window.find("Throughput over time", "chart")
        check(re.fullmatch("[0-9]+ % – Ondel Tarnwick", title := driver.display.title(window.id())), f"the title in a run: {title}")

        window.find("Complete", "status bar")
        window.until("the title without a figure", lambda: driver.windows("^Ondel Tarnwick$"))
        for name in TESTS:
            figure, meaning = window.find(name, "check box").get_description().split(". ", 1)
            check(len(meaning) > 40, f"{name} is explained as {meaning!r}")
            check(re.fullmatch(r"[1-9][0-9,]*|[0-9.]+k", figure), f"{name} shows {figure!r}")
        write = window.find(TESTS[0], "check box").get_description().split(". ")[0]
        window.until("the same figure in the result", lambda: any(
            node.get_name().startswith(f"Sequential Write: {write} MB/s") for node, _ in window.nodes()))
        nothing_left(folder)

        start(window, folder)
        window.press("Stop")
        window.find("Ready", "status bar")
        nothing_left(folder)
        window.quits()


def ends_cleanly_in_a_run(program, folder):
    def by_signals(*signals):
        return lambda window: window.end(*signals)

    def by_keyboard(window):
        window.keys("ctrl+q")
        return window.end()

    for way in (by_signals(signal.SIGTERM), by_signals(signal.SIGINT, signal.SIGINT, signal.SIGTERM), by_keyboard):
        with driver.Window(program, folder) as window:
            choose_small_size(window)
            start(window, folder)
            status, words = way(window)
            check((status, words) == (0, ""), f"ended with {status}: {words}")
        nothing_left(folder)
        last = LOG.read_text().splitlines()[-1]
        check(last.endswith("  benchmark cancelled"), f"the log's last line: {last}")


def stops_by_keyboard(program, folder):
    with driver.Window(program, folder) as window:
        for key in "Escape", "ctrl+period":
            start(window, folder)
            window.press("Help", "menu item")
            window.press("Report a Problem…", "menu item")
            window.find("Report a Problem", "heading")
            window.keys("Escape")
            window.gone("Report a Problem", "heading")
            window.find("Running…", "status bar")
            window.keys(key)
            window.find("Ready", "status bar")
            nothing_left(folder)


def says_why_a_run_failed(program, folder):
    with driver.Window(program, folder) as window:
        window.press("Run Benchmark")
        working = window.until("the working folder", lambda: list(folder.glob(".ondel-analyzer-*/data.bin")))[0].parent
        shutil.rmtree(working)
        window.find("Failed", "status bar")
        told = window.find("I/O error: open(read): No such file or directory").get_description()
        check(told == "The folder was removed or its volume unplugged during the run.", f"the second line: {told}")


def names_change_seldom_in_a_run(program, _folder):
    """Assistive technology reads each of them aloud."""
    staged = pathlib.Path(program).parent / "staged-window"
    with driver.Window(staged, "stream") as window:
        window.press("Run Benchmark")
        window.until("some progress", lambda: (window.progress(TESTS[0]) or 0) > 5)
        heard, since = window.listen(), time.monotonic()
        window.until("more progress", lambda: (window.progress(TESTS[0]) or 0) > 20)
        seconds = time.monotonic() - since
        check(0 < len(heard) <= 2 * seconds, f"{len(heard)} names in {seconds:.1f} s: {heard}")


def goes_by_keyboard(program, folder):
    with driver.Window(program, folder) as window:
        window.find("Ready to benchmark")
        order = []
        for _ in range(13):
            order.append(window.step())
        expected = ["Volume", "Show in Folder", "Run Benchmark", *TESTS, "Size", "Write block", "Read block", "Random block", "Bypass cache"]
        check(order == expected, f"the tab order is {order}")

        window.keys("space")
        window.until("the switch off", lambda: not window.shows(window.find("Bypass cache"), "CHECKED"))
        window.keys("shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab", "Return", "Up", "Return")
        window.until("the smaller size", lambda: window.find("Size").get_description() == "1 GiB")
        check(window.until("the focus back from the menu", window.focused) == "Size", "a menu does not return the focus")
        window.keys("ctrl+Return")
        window.find("Running…", "status bar")
        window.find("Complete", "status bar")
        window.until("the run made through the cache", lambda: saved_runs.stored()[0]["bypassCache"] is False)
        window.grab("Volume")  # outside of the panes, which keep the focus of what they hold
        window.keys("Return")
        window.find("Mounted volumes")
        window.keys("Escape")
        window.gone("Mounted volumes")
        check(window.until("the focus back in the toolbar", window.focused) == "Volume", "the toolbar's menu does not return the focus")


def tells_states_and_opens_menus_by_letter(program, folder):
    def held(name, role=None):
        node = window.find(name, role)
        return {state for state in ("EXPANDABLE", "EXPANDED", "COLLAPSED", "CHECKED") if window.shows(node, state)}

    with driver.Window(program, folder) as window:
        section = "Volume Capabilities", "push button"
        window.settled()
        check(held(*section) == {"EXPANDABLE", "EXPANDED"}, f"an open section is told as {held(*section)}")
        window.press(*section)
        window.until("the closed section", lambda: held(*section) == {"EXPANDABLE", "COLLAPSED"})
        window.press(*section)
        window.press("Size")
        window.settled()  # the toolkit sets states of its own after some milliseconds
        check([held(size) for size in ("1 GiB", "5 GiB")] == [set(), {"CHECKED"}], "the ticked size is not told")
        window.keys("Return")
        window.gone("64 GiB")
        window.press("Size")
        check(held("5 GiB") == {"CHECKED"}, "the size that was chosen again is not told")
        window.keys("Escape")
        window.gone("64 GiB")
        for key, command in (("alt+r", "Undo Delete"), ("alt+s", "Save Runs…"), ("alt+f", "Choose Folder…")):
            window.keys(key)
            window.find(command, "menu item")
            window.keys("Escape")
            window.gone(command, "menu item")
        window.quits()


def boxes(window, without):
    """Where the visible controls and texts are, without what lies in another one or in the support note."""
    outside, left_out = [], None
    for node, depth in window.nodes():
        if left_out is not None and depth > left_out:
            continue
        left_out = None
        role, name = driver.role_of(node), node.get_name()
        if name == "Tarnwick is free.":
            left_out = depth
        elif name and not name.startswith(without) and role in ("push button", "check box", "label", "heading", "chart", "alert", "status bar", "progress bar"):
            left_out = depth
            if window.shows(node, "SHOWING"):
                place = node.get_extents(window.atspi.CoordType.WINDOW)
                outside.append((name, place.x, place.y, place.x + place.width, place.y + place.height))
    return outside


def misplaced(window, width, without):
    """What is cut by the window's sides or lies over something else."""
    found = boxes(window, without)
    wrong = [f"{name} from {left} to {right}" for name, left, _, right, _ in found if left < 0 or right > width]
    for i, (name, *a) in enumerate(found):
        wrong += [f"{name} over {other}" for other, *b in found[i + 1:]
                  if min(a[2], b[2]) - max(a[0], b[0]) > 1 and min(a[3], b[3]) - max(a[1], b[1]) > 1]
    return wrong


def fits_every_size(program, folder):
    title = "The drive from the attic that makes that noise, third try ok"
    remarks = [{"code": "fromMemory", "weight": "invalid", "test": "sequentialRead", "numbers": [0.01]}]
    saved_runs.lay_down([saved_runs.run(0, customTitle=title, remarks=remarks), saved_runs.run(1, customTitle="W" * 60), saved_runs.run(2)])
    with driver.Window(program, folder) as window:
        def check_all(state, *without):
            for width, height in (360, 1400), (480, 800), (700, 620), (820, 620), (900, 620), (1180, 780):
                window.resize(width, height)
                try:  # a walk through the tree while it changes may see things twice
                    window.until("everything in its place", lambda: not misplaced(window, width, without))
                except driver.Failure:
                    raise driver.Failure(f"{state}, {width} by {height}: {misplaced(window, width, without)}") from None
        window.find("Ready to benchmark")
        check_all("rows")
        window.press(title, "push button")
        window.find("Throughput over time", "chart")
        check_all("a result")
        window.press("Compare")
        for name in "W" * 60, "media":
            window.press(name, "check box")
        check_all("picking", "Write: ", "Read: ")  # they are part of a check box that is no ancestor
        window.press("Compare 2")
        window.find("Comparing 2 runs")
        check_all("a comparison")
        window.quits()
    saved_runs.lay_down([])


def is_used_whole_when_small(program, folder):
    saved_runs.lay_down([saved_runs.run(0), saved_runs.run(1)])
    with driver.Window(program, folder) as window:
        window.resize(700, 600)
        check(window.look("Size") is None, "the sidebar has no room")
        for height in 480, 300:
            window.resize(360, height)
            window.press("Show Tests and Settings")
            window.until("the focus in the drawer", lambda: window.focused() == "Show in Folder")
            order = []
            while window.focused() != "Volume Capabilities":
                order.append(window.step())
            check(order[:10] == [*TESTS, "Size", "Write block", "Read block", "Random block", "Bypass cache"], f"the tab order is {order}")
            window.keys("Escape")
            window.until("the focus back on the button", lambda: window.focused() == "Show Tests and Settings")
            order = []
            while "Delete Backup" not in order:
                order.append(window.step())
            rows = [word for name in ("Samsung SSD 990 PRO", "Backup") for word in (name, f"Delete {name}")]
            check(order == ["Volume", "Run Benchmark", "Compare", "Clear", *rows], f"the tab order is {order}")
        choose = lambda: window.focused() == "Size"
        window.press("Show Tests and Settings")
        window.until("the size", lambda: choose() or window.step() == "Size")
        window.keys("Return", "Home", "Return")
        window.until("the focus back from the menu", choose)
        window.until("the first size", lambda: window.find("Size").get_description() == "1 GiB")
        window.keys("ctrl+Return")
        window.find("Running…", "status bar")
        window.press("Show Tests and Settings")
        window.keys("Escape")
        window.gone("Hide Tests and Settings")
        window.find("Running…", "status bar")
        window.press("Stop")
        window.find("Ready", "status bar")
        window.quits()
    saved_runs.lay_down([])


def keeps_its_size(program, folder):
    def size(window):
        frame = window.root.get_child_at_index(0).get_extents(window.atspi.CoordType.WINDOW)
        return frame.width, frame.height
    kept = None
    for chosen in (640, 500), (1180, 780), None:
        with driver.Window(program, folder) as window:
            window.find("Ready to benchmark")
            check(kept in (None, size(window)), f"it begins with {size(window)} instead of {kept}")
            if chosen:
                window.resize(*chosen)
            kept = chosen
            window.quits()


def refuses_what_it_cannot_use(program, folder):
    with driver.Window(program, folder / "missing") as window:
        window.find("Choose a volume to begin")
        check(not window.enabled("Run Benchmark"), "a run is possible without a target")
        status, words = window.terminate()
        check(status == 0 and words.count("\n") == 1 and "missing' is not a folder" in words, f"{status}: {words}")

    blind = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    for arguments, env, status in ((["--help"], blind, 0), ([folder], blind, 1), (["--nonsense"], os.environ, 2)):
        done = subprocess.run([program, *arguments], env=env, capture_output=True, text=True)
        words = done.stdout + done.stderr
        check(done.returncode == status and 0 < words.count("\n") <= 4, f"{arguments}: {done.returncode} {words}")


def tells_why_health_is_missing(program, _folder):
    staged = pathlib.Path(program).parent / "staged-window"
    reason = "nvme0n1 may only be asked by an administrator, and <b>UDisks2</b> does not answer"
    count = "2 of 3 disks answered: sdb is asleep and was left alone"
    for machine, note, has_section in (("silent", f"No S.M.A.R.T. figures: {reason}", False), ("partial", count, True)):
        with driver.Window(staged, machine) as window:
            def told():  # it may be scrolled out of view
                return {node.get_name() for node, _ in window.nodes()}
            window.until(repr(note), lambda: note in told())
            check(("S.M.A.R.T." in told()) == has_section, f"{machine}: the tree:\n{window.tree()}")
            heard = {node.get_description() for node, _ in window.nodes() if node.get_name() == "S.M.A.R.T."}
            check(heard == ({f"Verified. {note}"} if has_section else set()), f"{machine}: the verdict is heard as {heard}")


if __name__ == "__main__":
    driver.enter_display()
    program, _source, *only = sys.argv[1:]
    with driver.fast_folder() as name:
        cases = (runs_to_the_end, ends_cleanly_in_a_run, stops_by_keyboard, says_why_a_run_failed, names_change_seldom_in_a_run,
                 goes_by_keyboard, tells_states_and_opens_menus_by_letter, fits_every_size, is_used_whole_when_small, keeps_its_size,
                 refuses_what_it_cannot_use, tells_why_health_is_missing)
        for case in driver.chosen(cases, only):
            case(program, pathlib.Path(name))
            nothing_left(pathlib.Path(name))
