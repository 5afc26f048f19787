#!/usr/bin/python3
"""Can everything be read and hit? Goes through the window's states in light, dark and both high contrasts, changed while the
window is open, and computes the contrast of every text and the size of every control. Usage: driven_looks.py PROGRAM DRAG-SOURCE [CASE]...
"""

import collections
import contextlib
import json
import os
import pathlib
import re
import shutil
import sys

import driver
import saved_runs
from driven_requests import desktop_of
from driver import check

LOOKS = {"light": ("2", "contrast 0", "high-contrast 0"), "dark": ("1", "contrast 0", "high-contrast 0"),
         "high contrast, light": ("2", "contrast 1"), "high contrast, dark": ("1", "contrast 0", "high-contrast 1")}
BARS = {"light": (0xfb, 0xf9, 0xf5), "dark": (0x18, 0x30, 0x4b), "high contrast, light": (255,) * 3, "high contrast, dark": (0,) * 3}
DIMMING = 0.32
LEAST_TARGET = 24  # logical pixels

# What the design gives: in which looks, which ink, which texts, and why. In high contrast it gives nothing of this kind.
TERTIARY = "the design's tertiary text in the dark, of these captions and labels"
GIVEN_COLORS = [
    (("dark",), ("#6f86a0",), "Ready|Running…|Complete|Failed", TERTIARY),
    (("dark",), ("#6f86a0",), "No volume selected|.* · [0-9.]+ .iB [a-z]+", TERTIARY),
    (("dark",), ("#6f86a0",), "[A-Z][a-z]{2} [0-9]+(, [0-9]{4})? · .*", TERTIARY),
    (("dark",), ("#6f86a0",), "MB/s|ops/s|IOPS|peak .* · min .*", TERTIARY),
    (("dark",), ("#6f86a0",), "Throughput over time|[0-9.]+ .* of [0-9.]+ .*", TERTIARY),
    (("dark",), ("#6f86a0",), "Mounted volumes|Compare( [0-9])?|Clear|Cancel|Verified|Failing", TERTIARY),
    (("dark",), ("#6f86a0",), ".*  ·  .*|[0-9.,]+k?", TERTIARY),
    (("light",), ("#2f9e6a",), "Complete", "the badge's green on its own tint"),
    (("light",), ("#d9902f",), ".*", "a warning's value; a symbol beside it tells the same"),
    (("dark",), ("#ffffff",), "Stop", "white on the stop button"),
    (("light", "dark"), ("#ffffff",), "Support on Ko-fi", "white on the maker's coral"),
]
GIVEN_SIZES = []  # names, and why


def luminance(color):
    """WCAG 2.2."""
    parts = [part / 255 for part in color]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


class Picture:
    def __init__(self, window, title):
        words = driver.display.ppm(window.id(title))
        size = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", words)
        self.width, self.height = map(int, size.groups())
        self.bytes = words[size.end():]

    def colors(self, left, top, width, height):
        """The colours of a part, with their numbers."""
        found = collections.Counter()
        for y in range(max(0, round(top)), min(self.height, round(top + height))):
            start, end = max(0, round(left)), min(self.width, round(left + width))
            row = self.bytes[3 * (y * self.width + start):3 * (y * self.width + end)]
            found.update(zip(row[::3], row[1::3], row[2::3]))
        return found


class Reader:
    """Reads a window's texts and their grounds."""

    def __init__(self, window, folder, desktop):
        self.window, self.folder, self.desktop = window, folder, desktop

    def say(self, words):
        self.desktop.stdin.write(f"{words}\n".encode())
        self.desktop.stdin.flush()

    def texts(self, title):
        answer = self.folder / "answer"
        (self.folder / "request").touch()
        self.window.until("the texts", answer.exists)
        found = json.loads(answer.read_text())
        answer.unlink()
        return [text for text in found if re.search(title, text["window"])]

    def take(self, look, title, moves=False):
        """Changes the desktop's settings and waits until the window has followed."""
        for words in LOOKS[look]:
            self.say(words)
        self.window.until(f"the window in {look}", lambda: self.shows(look))
        if not moves:
            self.window.settled(title)

    def shows(self, look):
        """As the menu bar's ground tells, which a sheet dims."""
        ground = Picture(self.window, driver.MAIN).colors(700, 4, 4, 4).most_common(1)[0][0]
        return any(all(abs(share * part - is_) < 2 for part, is_ in zip(BARS[look], ground)) for share in (1, 1 - DIMMING))

    def read(self, title):
        """Yields each text that is shown, its contrast and what it should be."""
        picture = Picture(self.window, title)
        for text in self.texts(title):
            left, top, width, height = text["place"]
            if not text["enabled"] or min(width, height) < 6:
                continue
            ground = picture.colors(left - 3, top - 1, width + 6, height + 2).most_common(1)[0][0]
            share = text["opacity"]
            ink = [round(share * over + (1 - share) * under) for over, under in zip(text["ink"], ground)]
            is_large = text["size"] >= 24 or text["size"] >= 18.66 and text["weight"] >= 700
            yield text["text"], contrast(ink, ground), 3 if is_large else 4.5, "#%02x%02x%02x" % tuple(ink), "#%02x%02x%02x" % ground


PRESSED = ("Press", "Toggle")


def small_targets(window, title):
    """Controls that are smaller than a finger needs, with their sizes."""
    for frame, _ in window.nodes():
        if frame.get_role_name() in ("frame", "dialog") and re.search(title, frame.get_name()):
            break
    for node, _ in window.nodes(frame):
        if set(window.actions(node)).intersection(PRESSED) and window.shows(node, "SHOWING"):
            place = node.get_extents(window.atspi.CoordType.WINDOW)
            if min(place.width, place.height) < LEAST_TARGET:
                yield node.get_name(), place.width, place.height


class Gate:
    """Collects what is too pale or too small, but for what the design gives."""

    def __init__(self, reader):
        self.reader = reader
        self.pale, self.small, self.worst = {}, {}, {}

    def pass_through(self, state, title=driver.MAIN, moves=False):
        print(f"  {state}", flush=True)
        for look in LOOKS:
            self.reader.take(look, title, moves)
            for text, has, needs, ink, ground in self.reader.read(title):
                pair = look, ink, ground
                self.worst[pair] = min(self.worst.get(pair, (99, "")), (has, text))
                if has < needs and not any(look in looks and re.fullmatch(words, text) and ink in inks
                                           for looks, inks, words, _ in GIVEN_COLORS):
                    self.pale[look, text] = f"{has:.2f} instead of {needs}, {ink} on {ground}, in {state}"
        for name, width, height in small_targets(self.reader.window, title):
            if not any(re.fullmatch(words, name) for words, _ in GIVEN_SIZES):
                self.small[name] = f"{width} by {height} in {state}"

    def close(self):
        faults = [f"{look}: {text!r}: {what}" for (look, text), what in self.pale.items()]
        faults += [f"{name!r} is {what}" for name, what in self.small.items()]
        check(not faults, "cannot be read or hit:\n" + "\n".join(sorted(faults)))


def is_told_by_its_ground(reader, first, second):
    """The chosen entry of an open menu stands out from the others, in every look."""
    for look in LOOKS:
        reader.take(look, driver.MAIN)
        picture = Picture(reader.window, driver.MAIN)
        grounds = [picture.colors(left - 3, top - 1, width + 6, height + 2).most_common(1)[0][0]
                   for wanted in (first, second) for text in reader.texts(driver.MAIN) if text["text"] == wanted
                   for left, top, width, height in [text["place"]]]
        check(len(grounds) == 2 and contrast(*grounds) >= 3, f"{look}: a chosen entry's ground is {grounds}")


def before_a_run(start, _folder):
    saved_runs.lay_down([])
    with start() as reader:
        gate, window = Gate(reader), reader.window
        window.find("Choose a volume to begin")
        gate.pass_through("the first window")
        window.press("Volume")
        window.find("Mounted volumes")
        gate.pass_through("the menu of volumes")
        window.keys("Escape", "F10")
        window.find("About Ondel Tarnwick", "menu item")
        window.keys("Down")
        gate.pass_through("the menu bar's first menu")
        is_told_by_its_ground(reader, "About Ondel Tarnwick", "Quit")
        window.keys("Escape")
        for menu, command, title, name in (("Tarnwick", "Settings…", "^Settings$", "the settings"),
                                           ("Tarnwick", "About Ondel Tarnwick", "^About", "the panel about the program")):
            window.press(menu, "menu item")
            window.press(command, "menu item")
            driver.appearing(title)
            gate.pass_through(name, title)
            driver.focus(title)
            driver.display.press("Escape")
            window.until("its end", lambda: not driver.windows(title))
        window.press("Help", "menu item")
        window.press("Report a Problem…", "menu item")
        window.find("Send", "push button")
        window.press("Attach diagnostics")
        gate.pass_through("the report's sheet")
        gate.close()


def after_runs(start, folder):
    remarks = [{"code": "fromMemory", "weight": "invalid", "test": "sequentialRead", "numbers": [0.01]},
               {"code": "powerSaving", "weight": "note", "numbers": [1]}]
    saved_runs.lay_down([saved_runs.run(0, remarks=remarks), saved_runs.run(1), saved_runs.run(2)])
    with start(folder) as reader:
        gate, window = Gate(reader), reader.window
        window.resize(1180, 1300)
        window.find("Previous runs")
        gate.pass_through("the history")
        window.context_menu("Backup")
        window.find("Delete Run", "menu item")
        gate.pass_through("a run's menu")
        window.keys("Escape")
        window.gone("Delete Run", "menu item")
        window.press("Samsung SSD 990 PRO", "push button")
        gate.pass_through("a run")
        window.press("Samsung SSD 990 PRO", "push button")
        window.find("Report title", "text")
        gate.pass_through("a title's field")
        window.keys("Escape")
        window.press("Collapse")
        window.press("Compare")
        gate.pass_through("the choice of runs")
        for name in ("Samsung SSD 990 PRO", "Backup"):
            window.press(name, "check box")
        window.press("Compare 2")
        window.find("Comparing 2 runs")
        gate.pass_through("a comparison")
        window.press("Close")
        window.press("Clear")
        window.find("Delete all saved runs?")
        gate.pass_through("a question")
        window.press("Delete All")
        window.find("3 runs deleted")
        gate.pass_through("the offer to undo")
        gate.close()


def during_runs(start, folder):
    with start("five", program="staged-window") as reader:
        gate, window = Gate(reader), reader.window
        window.press("Run Benchmark")
        window.find("Running…", "status bar")
        gate.pass_through("a run under way", moves=True)
        gate.close()
    with start(folder) as reader:
        gate, window = Gate(reader), reader.window
        window.press("Run Benchmark")
        shutil.rmtree(window.until("the working folder", lambda: list(folder.glob(".ondel-analyzer-*/data.bin")))[0].parent)
        window.find("Failed", "status bar")
        gate.pass_through("a failed run")
        gate.close()
    with start("failing", program="staged-window") as reader:
        gate, window = Gate(reader), reader.window
        window.resize(1180, 1300)
        window.find("S.M.A.R.T.", "push button")
        gate.pass_through("a failing drive")
        window.press("S.M.A.R.T.", "push button")
        gate.pass_through("a failing drive's figures")
        gate.close()


def checks_of_capacity(start, folder):
    saved_runs.lay_down([])
    saved_runs.lay_down_checks([saved_runs.capacity_check(kind) for kind in ("changed", "good", "sampled")])
    with start(folder) as reader:
        gate, window = Gate(reader), reader.window
        window.resize(1180, 1300)
        window.press("Run", "menu item")
        window.press("Check Capacity…", "menu item")
        window.find("Start Check")
        gate.pass_through("the choices of a capacity check")
        for sentence in ("4 blocks did not come back as they were written, the first at 41.2 GiB.",
                         "All 118.0 GiB of free space hold what was written."):
            row = [node for node, _ in window.nodes() if node.get_description() == sentence][0]
            row.do_action(window.actions(row).index("Press"))
            window.find("Save Report…")
            gate.pass_through("what a capacity check found")
            window.press("New Check")
        gate.close()


def follows_the_text_scale(start, folder):
    saved_runs.lay_down([saved_runs.run(index) for index in range(3)])
    with start(folder) as reader:
        window = reader.window

        def sizes():
            return {text["text"]: text["size"] for text in reader.texts(driver.MAIN)}
        window.find("Previous runs")
        window.settled()
        before, row = sizes(), window.find("Sequential write").get_extents(window.atspi.CoordType.WINDOW).height
        reader.say("text 1.5")
        window.until("larger rows", lambda: window.find("Sequential write").get_extents(window.atspi.CoordType.WINDOW).height > row)
        window.settled()
        after = sizes()
        small = {text: (size, after[text]) for text, size in before.items() if text in after and after[text] < round(1.5 * size) - 1}
        check(len(before) > 40 and not small, f"do not grow: {small}")
        check(not list(small_targets(window, driver.MAIN)), "controls are too small")
        window.press("Backup", "push button")
        window.settled()
        cut = [text["text"] for text in reader.texts(driver.MAIN) if text["cut"]]
        check(not cut, f"are cut: {cut}")
        window.press("Collapse")
        window.find("Delete Backup")
        window.settled()
        reader.say("text 1")
        window.until("the sizes of before", lambda: sizes() == before)


if __name__ == "__main__":
    driver.enter_display(1400, 1400)
    program, _source, *only = sys.argv[1:]
    programs = pathlib.Path(program).parent
    census = pathlib.Path(os.environ["HOME"], "census")
    census.mkdir()
    plugin = {"ONDEL_TEXT_CENSUS": str(census), "QT_QPA_GENERIC_PLUGINS": "textcensus", "QT_PLUGIN_PATH": str(programs / "plugins")}
    with driver.fast_folder() as name, desktop_of(2) as desktop:
        check(desktop.stdout.readline() == b"ready\n", "the fake desktop did not start")

        @contextlib.contextmanager
        def start(*arguments, program="tarnwick"):
            with driver.Window(programs / program, *arguments, env=plugin) as window:
                yield Reader(window, census, desktop)
                window.terminate()
        for case in driver.chosen((before_a_run, after_runs, during_runs, checks_of_capacity, follows_the_text_scale), only):
            case(start, pathlib.Path(name))
