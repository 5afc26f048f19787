#!/usr/bin/python3
"""Markup in every text from outside: it is shown as plain text, without a connection and without reading a file.
Usage: driven_markup.py PROGRAM"""

import json
import os
import pathlib
import socket
import subprocess
import sys
import threading

import driver
import saved_runs
from driver import check

KINDS = ("internalDrive", "external", "network")
TEXTS = ("volumeName", "connection", "fsType", "sizeLabel", "deviceModel", "deviceProtocol", "customTitle")


class Lures:
    """A server and a pipe that the markup refers to. Both record visits."""

    def __init__(self, folder):
        self.visits = []
        self.pipe = folder / "picture.png"
        os.mkfifo(self.pipe)
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.address = "http://127.0.0.1:%d/" % self.listener.getsockname()[1]
        for watch in (self.serve, self.feed):
            threading.Thread(target=watch, daemon=True).start()

    def serve(self):
        while True:
            connection, _ = self.listener.accept()
            request = connection.recv(1000).split(b"\r\n")[0].decode()
            self.visits.append(request)
            connection.sendall(b"HTTP/1.0 404 None\r\n\r\n")
            connection.close()

    def feed(self):
        with open(self.pipe, "wb"):  # waits for a reader
            self.visits.append("the file")

    def markups(self, field):
        """Texts with markup. A text is shown in full up to 300 characters."""
        picture = f"{self.address}{field}.png"
        return [f'<img src="{picture}">',
                f'<style>@import "{picture}";</style><p style="background:url({picture})"><a href="{picture}">a</a><img src={picture}>',
                f'<b>&lt;</b><IMG SRC="{picture.replace("/", "&#47;")}"><img src="file://{self.pipe}"><img src="{self.pipe}">']


def hostile_runs(lures):
    """For every attachment of a volume and every markup a run with it in all texts. Every second one has no custom title, which
    would hide the other names."""
    runs = []
    for number, (kind, variant) in enumerate((kind, variant) for kind in KINDS for variant in range(3)):
        texts = {field: lures.markups(f"{kind}-{field}")[variant] for field in TEXTS}
        if number % 2:
            texts["customTitle"] = None
        runs.append(saved_runs.run(number, kind=kind, **texts))
    return runs


def saved(runs, folder):
    files = []
    for number, record in enumerate(runs):
        files.append(folder / f"{number}.tarnwickrun")
        files[-1].write_text(json.dumps(record), encoding="utf-8")
    return files


def has_no_visits(lures, where):
    check(not lures.visits, f"{where}: {len(lures.visits)} visits, first {lures.visits[:3]}")


def cards_are_drawn(host, files, lures):
    for shown in ([files[1]], [files[3]], [files[8]], files):
        try:
            drawn = subprocess.run([host, "card", *shown], capture_output=True, text=True, timeout=driver.GUARD_SECONDS)
        except subprocess.TimeoutExpired as hung:
            raise driver.Failure(f"no card after {hung.timeout} s, {len(lures.visits)} visits: {lures.visits[:3]}") from None
        check((drawn.returncode, drawn.stderr) == (0, ""), f"{shown}: {drawn.returncode} {drawn.stderr}")
    has_no_visits(lures, "cards")


def rows(window):
    """The visible rows of the history by their texts. From bottom to top, because an opened row moves those below it out of view."""
    return {(node.get_name(), node.get_description()): node for node in list(node for node, _ in window.nodes())[::-1]
            if driver.role_of(node) == "push button" and " · " in node.get_description() and window.shows(node, "SHOWING")}


def charts(window):
    return [node for node, _ in window.nodes() if node.get_role_name() == "chart"]


def share(window):
    """Draws the first card, which opens its menu."""
    window.press("Share")
    window.find("Save As…", "menu item")
    window.keys("Escape")
    window.gone("Save As…", "menu item")


def history_is_shown(program, file, runs, lures):
    """The history at the start, each run opened, a comparison of all, and a run file."""
    saved_runs.lay_down(runs)
    with driver.Window(program) as window:
        window.find("Previous runs")
        window.resize(1180, 1400)
        window.settled()
        has_no_visits(lures, "a start with the history")
        closed = window.until("the rows", lambda: rows(window))
        for texts in closed:  # a row is made anew when it comes back into view
            window.until(f"the row {texts}", lambda: rows(window)[texts].do_action(0))
        window.until("their panes", lambda: len(charts(window)) == len(closed))
        share(window)
        window.settled()
        has_no_visits(lures, "runs from the history, and the card of one")
        window.press("Compare")
        for node in [node for node, _ in window.nodes() if node.get_role_name() == "check box" and "://" in node.get_name()]:
            node.do_action(0)
        window.press(f"Compare {len(runs)}")
        window.find(f"Comparing {len(runs)} runs")
        share(window)
        window.settled()
        has_no_visits(lures, "a comparison of all, and its card")
        window.quits()
    saved_runs.lay_down([])
    with driver.Window(program, file) as window:
        window.find("Collapse")
        share(window)
        window.settled()
        has_no_visits(lures, "a run file, and its card")
        window.quits()


def target_is_shown(staged, lures):
    """A volume and a drive with such names: toolbar, sidebar, a run on it, and its record."""
    saved_runs.lay_down([])
    for number, text in enumerate(lures.markups("target")[1:]):
        with driver.Window(staged, "named", text, env={"TMPDIR": os.environ["TMPDIR"]}) as window:
            window.resize(1180, 1400)
            if number == 0:  # the choice is stored
                window.press("S.M.A.R.T.", "push button")
            window.find(f"{text}: {text}")
            window.find(f"File system: {text.upper()}")
            window.press("Run Benchmark")
            window.find(text, "label")
            window.find("Collapse")
            share(window)
            window.settled()
            has_no_visits(lures, text)


if __name__ == "__main__":
    driver.enter_display(1400, 1500)
    with driver.fast_folder() as name:
        lures = Lures(pathlib.Path(name))
        runs = hostile_runs(lures)
        files = saved(runs, pathlib.Path(name))
        programs = pathlib.Path(sys.argv[1]).parent
        cards_are_drawn(programs / "tarnwick-host", files, lures)
        history_is_shown(sys.argv[1], files[1], runs, lures)
        target_is_shown(programs / "staged-window", lures)
        has_no_visits(lures, "afterwards")
