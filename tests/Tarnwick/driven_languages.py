#!/usr/bin/python3
"""Is every text translated, and is there room for it? Goes through the window's states in the pseudo-language, from left to right
and from right to left, and through the most crowded one in every language. Usage: driven_languages.py PROGRAM LRELEASE [CASE]...
PICTURES=FOLDER keeps a picture of each state there.
"""

import contextlib
import itertools
import json
import os
import pathlib
import re
import subprocess
import sys

import driver
import saved_runs
import translated
from displays import do, output
from driver import check

SIZE = (900, 620)

# What is the same in every language.
UNTRANSLATED = re.compile("|".join((
    r"Ondel Tarnwick|Tarnwick|Ko-fi|S\.M\.A\.R\.T\.|(\w+\+)+\S+|Del|Entf|Esc|F\d+|tarnwick(-host)?\S*",
    r"(\b|(?<=\d))([KkMGTP]?i?B|[kMG]?B/s|GiB|ops/s|IOPS|k|M|ms|µs|s|min|h|p99|files/s|°C|px|QR|PNG|CSV|Markdown|JSON|NVMe|PCIe|SATA|USB|ATA)\b",
    r"\b(?i:ext4|btrfs|xfs|tmpfs|overlay|exfat|nfs|vfat|ntfs)\b",
    r"\b(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec|AM|PM)\b",
    r"https?://\S+|ondel\.example\S*|\S*/ondel test \w+|\S+@\S+|/\S*",
    r"\S*  —  .*",  # the machine's volumes
    r"\bv?\d+(\.\d+)+\b",
)))
DATA = ["Samsung SSD 990 PRO", "Backup", "media", "SD card", "STICK", "ACME Flash", "TMPFS", "shm"]


def rest_of(text):
    """What of a text is neither in brackets nor data."""
    while (shorter := re.sub(r"\[[^\[\]]*\]", "", text)) != text:
        text = shorter
    for name in DATA:
        text = text.replace(name, "")
    return "".join(re.findall(r"[^\W\d_]+", UNTRANSLATED.sub("", text)))


class Gate:
    """Collects what is not translated and what is cut."""

    def __init__(self, window, folder):
        self.window, self.folder = window, folder
        self.bare, self.cut = {}, {}

    def texts(self):
        answer = self.folder / "answer"
        (self.folder / "request").touch()
        self.window.until("the texts", answer.exists)
        found = json.loads(answer.read_text())
        answer.unlink()
        return found

    def look(self, state):
        painted = self.texts()
        spoken = [text for node, _ in self.window.nodes() for text in (node.get_name(), node.get_description())
                  if self.window.shows(node, "SHOWING")]
        for text in itertools.chain(spoken, (text["text"] for text in painted)):
            if rest_of(text):
                self.bare.setdefault(text, state)
        for text in painted:
            if text["cut"] and re.search(r"[\[\]]", text["text"]):
                self.cut.setdefault(text["text"], state)

    def judge(self):
        for what, found in (("not translated", self.bare), ("cut", self.cut)):
            for text, state in found.items():
                print(f"{what}, {state}: {text!r}")
        check(not self.bare and not self.cut, f"{len(self.bare)} texts are not translated, {len(self.cut)} are cut")


def before_a_run(start, folder):
    saved_runs.lay_down([])
    with start() as (window, look):
        window.find("Choose a volume to begin")
        look("nothing chosen")
        window.press("Volume")
        window.find("Choose Folder…")
        look("the volumes")
        window.keys("Escape")
        for menu in ("&Tarnwick", "&File", "&Run", "Hi&story", "&Help"):
            window.press(menu, "menu item")
            look(f"the menu {menu}")
            window.keys("Escape")
        window.press("&Help", "menu item")
        window.press("Report a Problem…", "menu item")
        window.find("Report a Problem", "heading")
        look("a report of a problem")
        window.keys("Escape")
        window.press("&Tarnwick", "menu item")
        window.press("Settings…", "menu item")
        window.find("Check Now")
        look("the settings")
    with start(folder) as (window, look):
        window.find("Ready to benchmark")
        look("a folder chosen")
        window.press("Size")
        window.find("Fill disk")
        look("the sizes")
        window.press("Fill disk")
        window.press("Run Benchmark")
        window.find("Fill the disk?")
        look("the question")


def during_and_after_a_run(start, folder):
    found = [{"code": "fromMemory", "weight": "invalid", "test": "sequentialRead", "numbers": [0.01]},
             {"code": "speedFell", "weight": "caution", "test": "sequentialWrite", "numbers": [1.9e9, 3.1e8, 42e9]},
             {"code": "compresses", "weight": "note", "numbers": []}]
    latency = {"p50": 0.00011, "p99": 0.00031, "p999": 0.0021, "worst": 0.012}
    saved_runs.lay_down([saved_runs.run(0, remarks=found, evidence={"randomReadLatency": latency, "randomWriteLatency": latency}),
                         saved_runs.run(1), saved_runs.run(2)])
    with start(folder) as (window, look):
        window.press("Run Benchmark")
        window.find("Whole run")
        look("a run", moving=True)
        window.find("Complete", "status bar")
        look("its result")
        window.press("Collapse")
        window.press("Samsung SSD 990 PRO", "push button")
        window.find("Collapse")
        look("a result with remarks")
        window.press("Share")
        window.find("Copy Image", "menu item")
        look("the ways to share")
        window.keys("Escape")
        window.press("Collapse")
        window.context_menu("Backup")
        window.find("Rename Report…")
        look("a run's menu")
        window.keys("Escape")
        window.press("Clear")
        window.find("Delete all saved runs?")
        look("the last question")
        window.press("Cancel")
        window.press("Compare")
        for name in ("Samsung SSD 990 PRO", "Backup"):
            window.press(name, "check box")
        look("runs to compare")
        window.press(window.words("Compare %n").replace("%n", "2"))
        window.find("Differences from")
        look("a comparison")


def checks_of_capacity(start, folder):
    saved_runs.lay_down([])
    kinds = {"good": "All ", "false": "This ", "changed": "4 ", "sampled": "Samples "}
    saved_runs.lay_down_checks([saved_runs.capacity_check(kind) for kind in kinds])
    with start(folder) as (window, look):
        window.press("&Run", "menu item")
        window.press("Check Capacity…", "menu item")
        window.find("Start Check")
        look("the choices of a check")
        for kind, beginning in kinds.items():
            beginning = "[" + beginning.translate(translated.ACCENTS)
            row = [node for node, _ in window.nodes() if node.get_description().startswith(beginning)][-1]
            row.do_action(window.actions(row).index("Press"))
            window.find("Save Report…")
            look(f"a check that found its volume {kind}")
            window.press("New Check")


def card_of(window):
    """The bytes of the picture of the stored run."""
    for picture in home.rglob("*.png"):
        picture.unlink()
    window.press("Backup", "push button")
    window.press("Share")
    window.find("Copy Image", "menu item")
    return window.until("the picture", lambda: next(home.rglob("Ondel*.png"), None)).read_bytes()


def told_in_search(run, env):
    """What the desktop's search says of a run."""
    name, place = "tools.ondel.tarnwick.SearchProvider", "/tools/ondel/tarnwick/SearchProvider"
    with subprocess.Popen([programs / "tarnwick-search-provider"], env=os.environ | env) as provider:
        try:
            do("gdbus", "wait", "--session", "--timeout", "40", name)
            return output("gdbus", "call", "--session", "--dest", name, "--object-path", place,
                          "--method", "org.gnome.Shell.SearchProvider2.GetResultMetas", f"['{run['id'].lower()}']")
        finally:
            provider.terminate()


def follows_the_setting(program, plugin, folder):
    """It overrides the desktop's language from the next start on, in the desktop's search as well. Pictures to share stay English
    if that is wanted."""
    run = saved_runs.run(1)
    saved_runs.lay_down([run])
    desktop = plugin | {"LC_ALL": "", "LANG": "en_US.UTF-8", "LANGUAGE": "fr"}
    with translated.Window(program, folder, words=str, env=desktop | {"LANGUAGE": "en"}) as window:
        english = card_of(window)
        window.keys("Escape")
        window.press("Tarnwick", "menu item")
        window.press("Settings…", "menu item")
        window.press("Language of the window")
        window.press("Deutsch", "menu item")
        window.find("The window follows when Tarnwick is started the next time.")
        window.terminate()
    german = translated.words_of("de")
    told = told_in_search(run, desktop)
    check(f"{german('Write')} 412" in told, f"the search says {told}")
    for name, is_english in (("as it is", False), ("in English", True)):
        with translated.Window(program, folder, words=german, env=desktop) as window:
            window.find("Ready to benchmark")
            check((card_of(window) == english) == is_english, f"the picture is not {name}")
            window.keys("Escape")
            window.press("&Tarnwick", "menu item")
            window.press("Settings…", "menu item")
            window.press("Shared pictures in English", "check box")
            window.until("the switch", lambda: window.shows(window.look("Shared pictures in English", "check box"), "CHECKED") != is_english)
            window.terminate()


def every_language(program, plugin, folder):
    """The window opens in its language, which LANGUAGE names, with room for a result."""
    saved_runs.lay_down([saved_runs.run(1)])
    for language in translated.LANGUAGES:
        env = plugin | {"LC_ALL": "", "LANG": "en_US.UTF-8", "LANGUAGE": language}
        with translated.Window(program, folder, words=translated.words_of(language), env=env) as window:
            window.resize(*SIZE)
            window.find("Ready to benchmark")
            window.press("Backup", "push button")
            window.find("Collapse")
            window.settled()
            cut = [text["text"] for text in Gate(window, home / "census").texts() if text["cut"] and folder.name not in text["text"]]
            check(not cut, f"are cut in {language}: {cut}")
            window.terminate()


if __name__ == "__main__":
    driver.enter_display(1400, 1000)
    program, lrelease, *only = sys.argv[1:]
    programs = pathlib.Path(program).parent
    home = pathlib.Path(os.environ["HOME"])
    (home / "census").mkdir()
    plugin = {"ONDEL_TEXT_CENSUS": str(home / "census"), "QT_QPA_GENERIC_PLUGINS": "textcensus",
              "QT_PLUGIN_PATH": str(programs / "plugins"), "TARNWICK_CATALOGUE": str(home / "pseudo.qm")}
    sources = {source for _, source, _, _ in translated.messages("de")}

    def words(text):
        return translated.pseudo(text).replace("&", "") if text in sources else text
    with driver.fast_folder() as name:
        for direction in ("de", "ar"):
            translated.write_pseudo_catalogue(lrelease, home / "pseudo.qm", direction)

            @contextlib.contextmanager
            def start(*arguments):
                with translated.Window(program, *arguments, words=words, env=plugin) as window:
                    window.resize(*SIZE)
                    gate = Gate(window, home / "census")

                    def look(state, moving=False):
                        if not moving:
                            window.settled()
                        gate.look(state)
                        if pictures := os.environ.get("PICTURES"):
                            window.picture(pathlib.Path(pictures, f"{direction}-{state}.png"))
                    yield window, look
                    gate.judge()
                    window.terminate()
            for case in driver.chosen((before_a_run, during_and_after_a_run, checks_of_capacity), only):
                case(start, pathlib.Path(name))
        del plugin["TARNWICK_CATALOGUE"]
        for case in driver.chosen((every_language, follows_the_setting), only):
            case(program, plugin, pathlib.Path(name))
