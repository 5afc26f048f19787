#!/usr/bin/python3
"""Requests of the desktop and of other starts to the application. Usage: driven_requests.py PROGRAM DRAG-SOURCE [CASE]..."""

import contextlib
import json
import os
import pathlib
import re
import resource
import select
import signal
import socket
import subprocess
import sys
import time

import driver
import saved_runs
from driver import check
from driven_window import choose_small_size, nothing_left, start, TESTS

NAME, OBJECT = "tools.ondel.tarnwick", "/tools/ondel/tarnwick"
TITLE = "^Ondel Tarnwick$"


def run_file(folder, index, name=None, **fields):
    path = folder / (name or f"{index}.tarnwickrun")
    path.write_text(json.dumps(saved_runs.run(index, customTitle=f"Run {index}", **fields)))
    return path


def shows_run(window, index):
    window.until(f"run {index}", lambda: any(f"Run {index}" in node.get_name() for node, _ in window.nodes()))


@contextlib.contextmanager
def child(*command, **pipes):
    with subprocess.Popen([str(word) for word in command], bufsize=0, **pipes) as process:
        try:
            yield process
        finally:
            process.kill()


def call(method, *arguments):
    """Calls the application over the bus like a desktop."""
    done = subprocess.run(["gdbus", "call", "--session", "--dest", NAME, "--object-path", OBJECT, "--timeout", "20", "--method",
                           f"org.freedesktop.Application.{method}", *arguments, "{'activation-token': <'leave'>}"],
                          capture_output=True, text=True)
    return done.returncode == 0


def opens_over_bus(urls, token):
    """For more than fits on a command line."""
    from gi.repository import Gio, GLib
    given = GLib.Variant("(asa{sv})", (urls, {"activation-token": GLib.Variant("s", token)}))
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(NAME, OBJECT, "org.freedesktop.Application", "Open", given, None, 0, 20000, None)


def opens(*urls):
    return call("Open", json.dumps([str(url) for url in urls]))


def two_starts_give_one_window(program, folder):
    for _ in range(3):
        both = [subprocess.Popen([program, folder]) for _ in range(2)]
        while all(start.poll() is None for start in both) or not driver.windows(TITLE):
            time.sleep(0.02)
        ended, stays = sorted(both, key=lambda start: start.poll() is None)
        check(ended.returncode == 0 and len(driver.windows(TITLE)) == 1, "two starts do not give one window")
        check(subprocess.run([program]).returncode == 0 and call("Activate"), "a third start does not find the first")
        stays.terminate()
        check(stays.wait(driver.GUARD_SECONDS) == 0, "the first does not end quietly")


def ended(program, *arguments):
    """Status and messages of a start that ends by itself."""
    with child(program, *arguments, stderr=subprocess.PIPE) as start:
        words = start.communicate(timeout=driver.GUARD_SECONDS)[1].decode()
        return start.returncode, words


def stored():
    """Titles of the history's runs, newest first."""
    return [run["customTitle"] for run in saved_runs.stored()]


def shows_all_rows(window):
    """Of a full history beside the run on show; they are made a few a frame."""
    window.until("all rows", lambda: sum(node.get_description() == "Delete this run" for node, _ in window.nodes()) == 49)


def many_runs_come_in_one_go(program, folder):
    """More files than the history holds, and another start right after them."""
    files = [run_file(folder, index, date="2026-01-01T00:00:00Z") for index in range(400)]
    with driver.Window(program) as window:
        window.find("Choose a volume to begin")
        for given in files, [run_file(folder, 400, "last.tarnwickrun", date="2026-01-01T00:00:00Z")]:
            told = ended(program, *given)
            check(told == (0, ""), f"a second start ended with {told}")
        shows_run(window, 400)
        shows_all_rows(window)
        check(len(driver.windows(TITLE)) == 1, "a second window")
        check(stored() == [f"Run {index}" for index in range(400, 350, -1)], f"stored: {stored()}")
        first, middle, last = [run_file(folder, index, date="2026-01-01T00:00:00Z").as_uri() for index in (500, 501, 502)]
        opens_over_bus([first] * 50 + [middle] * 50 + [last] * 50, token="x" * 2**20)
        shows_run(window, 502)
        check(stored()[:3] == ["Run 502", "Run 500", "Run 400"], f"of a long list: {stored()[:3]}")
        status, words = ended(program, "no \x1b[31m folder")
        check(status == 0 and "'no \N{REPLACEMENT CHARACTER}[31m folder'" in words, f"it says {words!r}")
        window.settled()  # Qt warns about an end during an animation
        window.quits()
    with driver.Window(program, *files[:120]) as window:
        shows_run(window, 119)
        shows_all_rows(window)
        check(stored()[0] == "Run 119" and len(stored()) == 50, f"stored from the start: {stored()}")
        window.settled()  # Qt warns about an end during an animation
        window.quits()


def waits_for_a_stopped_process(program, folder):
    """The stopped process owns the name, so that later starts send their requests to it."""
    with driver.Window(program) as first:
        driver.appearing(TITLE)  # later than in the accessibility tree
        first.process.send_signal(signal.SIGSTOP)
        status, words = ended(program, folder)
        check(status == 1 and words.count("\n") == 1 and f"process {first.process.pid}" in words, f"it ended with {status}: {words}")
        check(len(driver.windows(TITLE)) == 1, f"windows: {driver.windows(TITLE)}")
        first.process.send_signal(signal.SIGCONT)
        first.find("Ready to benchmark")
        first.quits()


def starts_without_a_bus(program, folder):
    with socket.socket(socket.AF_UNIX) as deaf:  # accepts connections and never answers
        deaf.bind(f"{folder}/bus")
        deaf.listen()
        for bus in ("/nonexistent", f"{folder}/bus".replace(" ", "%20")):
            alone = subprocess.Popen([program, folder], env=os.environ | {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={bus}"},
                                     preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (10000, 10000)))
            while not driver.windows(TITLE):
                check(alone.poll() is None, "it does not start without a bus")
                time.sleep(0.02)
            alone.terminate()
            check(alone.wait(driver.GUARD_SECONDS) == 0, "without a bus it does not end quietly")


def launch_that_ended(source):
    """What the drag source, as a desktop, hears next of a launch."""
    told = "ready"
    while told == "ready":
        told = select.select([source.stdout], [], [], driver.GUARD_SECONDS)[0] and source.stdout.readline().decode().strip()
    return told


def ends_the_launch_feedback(program, folder, source):
    with child(source, stdout=subprocess.PIPE) as desktop, driver.Window(program) as window:
        mark = 'a desktop\'s "mark"_TIME7'
        check(subprocess.run([program], env=os.environ | {"DESKTOP_STARTUP_ID": mark}).returncode == 0, "a second start does not hand over")
        told = launch_that_ended(desktop)
        check(told == 'remove: ID="a desktop\'s \\"mark\\"_TIME7"', f"the desktop heard {told}")
        window.quits()


def opens_what_it_is_given(program, folder):
    odd = folder / os.fsdecode("odd # 100% ü \udcff".encode("utf-8", "surrogateescape"))
    odd.mkdir()
    url = f"file://{os.fspath(folder)}".replace(" ", "%20")
    for index in range(6):
        run_file(folder, index)
    run_file(folder, 7, "7.TARNWICKRUN")
    (folder / "broken.tarnwickrun").write_text("{}")
    with driver.Window(program, odd, folder / "0.tarnwickrun", folder) as window:
        shows_run(window, 0)
        check(window.enabled("Run Benchmark"), "the folder of the start is not the target")
        check(subprocess.run([program, "1.tarnwickrun"], cwd=folder).returncode == 0, "a second start does not hand over")
        shows_run(window, 1)
        check(opens(f"{url}/0.tarnwickrun"), "a stored run is refused")
        shows_run(window, 0)

        garbage = [url + "/7.TARNWICKRUN", url + "/missing/", "file://elsewhere/tmp", "http://x/y.tarnwickrun", "file://", "%", "",
                   url + "/2.tarnwickrun%00", "x" * 100000, url + "/missing.tarnwickrun", url + "/broken.tarnwickrun"]
        check(opens(*garbage), "garbage is refused")
        shows_run(window, 1)
        window.find("“missing.tarnwickrun” and 1 more are damaged or not Tarnwick runs.")
        check(opens(*garbage, f"file://localhost{folder}/2.tarnwickrun".replace(" ", "%20")), "a run among garbage is refused")
        shows_run(window, 2)
        check(call("ActivateAction", "choose-folder", "[]") and not call("ActivateAction", "nonsense", "[]"), "actions")
        driver.focus("Choose a folder")
        driver.display.press("Escape")

        choose_small_size(window)
        (work := folder / "work").mkdir()
        check(opens(f"{url}/work"), "a folder is refused")
        start(window, work)
        check(opens(f"{url}/", f"{url}/3.tarnwickrun"), "a request during a run is refused")
        window.press("Stop")
        window.find("Ready", "status bar")
        start(window, work)  # the target has not changed
        window.press("Stop")
        window.find("Ready", "status bar")
        shows_run(window, 3)
        nothing_left(work)
        window.quits()


def does_what_its_entries_say(program, folder):
    """The actions of the desktop entry, of sticks that are plugged in and of the desktop's search."""
    saved_runs.lay_down([saved_runs.run(index, customTitle=f"Run {index}") for index in range(3)])
    (stick := folder / "stick 100% ü").mkdir()
    with driver.Window(program, "--choose-folder") as window:
        driver.focus("Choose a folder")
        driver.display.press("Escape")
        window.until("the end of the dialog", lambda: not driver.windows("Choose a folder"))
        check(call("ActivateAction", "check-capacity", "[]"), "the check is refused")
        driver.focus("Choose a folder")  # there is none to check
        driver.display.press("Escape")
        window.until("the end of the dialog", lambda: not driver.windows("Choose a folder"))
        check(not window.look("Start Check"), "a check of nothing")

        check(subprocess.run([program, "--check-capacity", stick]).returncode == 0, "a second start does not hand over")
        window.find("Start Check")
        check(window.enabled("Run Benchmark"), "the stick is not the target")
        for run, parameters in ((1, [saved_runs.run(1)["id"].lower()]), (1, ["nonsense", "x"]), (1, []), (2, [saved_runs.run(2)["id"]])):
            shown = "[" + ",".join(f"<{json.dumps(text)}>" for text in parameters) + "]"
            check(call("ActivateAction", "show-run", shown if parameters else "@av []"), f"{parameters} are refused")
            window.until(f"run {run} above the others", lambda: [
                node.get_name() for node, _ in window.nodes() if re.fullmatch(r"Run \d", node.get_name())][:1] == [f"Run {run}"])
            check(not window.look("Start Check"), "a run beside the check")
        check(call("ActivateAction", "check-capacity", "[]"), "the check is refused")
        window.find("Start Check")
        check(call("ActivateAction", "check-capacity", "[<\"http://x/\">, <5>]"), "garbage is refused")
        window.find("“http://x/” and 1 more are not folders or run files that can be opened.")
        status, words = ended(program, "--check-capacities")
        check(status == 2 and words.startswith("Usage: "), f"an unknown option: {status}, {words}")
        window.settled()  # Qt warns about an end during an animation
        window.quits()
    check(len(saved_runs.stored()) == 3, "showing changes the history")


def leaves_nothing_without_a_display(program, folder):
    """The process ends with its display, as at the end of a session."""
    with subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp"], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True) as server:
        env = {"DISPLAY": ":" + server.stdout.readline().strip()}
        with driver.Window(program, folder, env=env) as window:
            start(window, folder)
            server.kill()
            window.process.wait(driver.GUARD_SECONDS)
    nothing_left(folder)


def takes_what_is_dropped(program, folder, source):
    def edge(window):
        return subprocess.run(["import", "-window", window.id(), "-crop", "1x1+0+400", "rgb:-"], capture_output=True, check=True).stdout

    def drop(over, after, *urls):
        with child(source, *urls, stdout=subprocess.PIPE) as drag:
            while drag.stdout.readline() != b"ready\n":
                pass
            subprocess.run(["xdotool", "mousemove", "1250", "50", "mousedown", "1", "mousemove", "1240", "60"], check=True)
            x = 1200  # a drag begins with a movement, and each one queries the target
            while not select.select([drag.stdout], [], [], 0.05)[0] or drag.stdout.readline() != b"accepted\n":
                x = x - 20 if x > 600 else 1200
                subprocess.run(["xdotool", "mousemove", str(x), "400"], check=True)
            over()
            subprocess.run(["xdotool", "mouseup", "1"], check=True)
            while drag.stdout.readline() != b"taken\n":
                pass
            after()

    with driver.Window(program) as window:
        window.find("Choose a volume to begin")
        window.settled()
        plain = edge(window)
        drop(lambda: check(edge(window) == plain, "files that cannot be opened light up the window"),
             lambda: window.find("“http://example.org/” and 3 more are not folders or run files that can be opened."),
             "http://example.org/", "file:///etc/hostname", "file:///nowhere/", "mailto:x")
        window.find("Choose a volume to begin")
        drop(lambda: window.until("the window lit up", lambda: edge(window) != plain),
             lambda: shows_run(window, 4), folder.as_uri(), run_file(folder, 4).as_uri())
        window.until("the window as before", lambda: edge(window) == plain)
        check(window.enabled("Run Benchmark"), "the dropped folder is not the target")


def goes_by_menu(program, folder):
    with driver.Window(program, folder) as window:
        window.find("Ready to benchmark")
        window.keys("F10", "Right", "Right", "Right", "Right", "Down", "Down", "Return")
        window.find("Report a Problem", "heading")
        window.keys("Escape")
        window.gone("Report a Problem", "heading")

        window.keys("alt")
        window.find("About Ondel Tarnwick", "menu item")
        check(not window.enabled("Check for Updates…", "menu item"), "updates are enabled without a feed")
        window.keys("Down", "Return")
        driver.focus("About Ondel Tarnwick")
        driver.display.press("Escape")

        window.keys("ctrl+comma")
        driver.focus("Settings")
        for name in ("Check for updates automatically", "Check Now"):
            check(not window.enabled(name), f"{name} is enabled without a feed")
        window.find("Not Now")
        window.press("I’ve already supported Tarnwick")
        window.gone("Not Now")
        for keys in ("ctrl+o", "ctrl+shift+o", "ctrl+q", "ctrl+w"):  # of these, the settings know the last alone
            driver.display.press(keys)
        window.until("the end of the settings", lambda: not driver.windows("^Settings$"))
        check(len(driver.windows(".")) == 1, "the main window's keys act in the settings")

        window.keys("ctrl+shift+o")
        driver.focus("Open")
        driver.display.type(f"{run_file(folder, 5)}")
        driver.display.press("Return")
        shows_run(window, 5)
        window.press("Help", "menu item")
        window.press("Report a Problem…", "menu item")
        window.find("Report a Problem", "heading")
        window.keys("k", "e", "p", "t")
        window.keys("ctrl+q")
        check(window.end() == (0, ""), "it does not quit from a sheet")
    with driver.Window(program) as window:
        window.press("Help", "menu item")
        window.press("Report a Problem…", "menu item")
        summary = window.find("Summary — a one-line description")
        check(window.atspi.Text.get_text(summary, 0, -1) == "kept", "the typed text is lost")
        window.keys("Escape")
        window.quits()


def hears_of(desktop):
    """A function that checks the beginnings of the desktop's next lines, and returns the last."""
    def told(*lines):
        for line in lines:
            heard = select.select([desktop.stdout], [], [], driver.GUARD_SECONDS)[0] and desktop.stdout.readline().decode().strip()
            check(heard and heard.startswith(line), f"the desktop heard {heard!r}, not {line!r}")
        return heard
    return told


def desktop_of(*words):
    return child("/usr/bin/python3", pathlib.Path(__file__).with_name("desktop_portal.py"), *words, stdin=subprocess.PIPE,
                 stdout=subprocess.PIPE)


def icon_progress(window):
    """A list of what a task bar hears from now on: whether there is progress, and its share."""
    from gi.repository import Gio
    heard = []

    def hear(_bus, _sender, _path, _interface, _signal, update):
        entry, told = update.unpack()
        check(entry == f"application://{NAME}.desktop", f"progress of {entry}")
        heard.append((told["progress-visible"], told["progress"]))
    window.bus = Gio.bus_get_sync(Gio.BusType.SESSION)  # it lasts as long as somebody has it
    window.bus.signal_subscribe(None, "com.canonical.Unity.LauncherEntry", "Update", None, None, Gio.DBusSignalFlags.NONE, hear)
    return heard


def asks_for_attention_behind_others(program, folder, source):
    with driver.Window(program) as window:
        window.keys("F10")
        window.find("Settings…", "menu item")
        with child(source, stdout=subprocess.DEVNULL):
            driver.focus("Drag from here")
            window.gone("Settings…", "menu item")  # a menu would cover the other window
            check(subprocess.run([program]).returncode == 0, "a second start does not hand over")
            if not isinstance(driver.display, driver.X11):  # there it takes a window manager
                window.until("the mark of a window that wants attention", lambda: driver.display.node(window.id())["urgent"])
        window.quits()


def notifies_the_desktop_of_runs(program, folder, source):
    with desktop_of(2) as desktop, child(source, stdout=subprocess.PIPE) as other:
        told = hears_of(desktop)
        told("ready")
        with driver.Window(program, folder) as window:
            choose_small_size(window)
            for test in TESTS[1:]:
                window.press(test)
            driver.focus("Drag from here")  # a window with the focus gives no notice; one without keeps no menu open
            icon = icon_progress(window)
            start(window, folder)
            told("awake 12 A benchmark is running")
            window.until("progress on the icon", lambda: [shown for shown, share in icon if shown and 0 <= share < 1])
            window.press("Stop")
            told("asleep")
            window.until("the end of it", lambda: not icon[-1][0])
            start(window, folder)
            told("awake")
            window.find("Complete", "status bar")
            told("asleep", "notice Benchmark complete: ")
            desktop.stdin.write(b"press\n")
            heard = launch_that_ended(other)
            check(heard == 'remove: ID="pressed"', f"a press on the notice: the desktop heard {heard}")
            driver.focus(TITLE)  # without a window manager the program cannot take the focus itself
            told("withdrawn")
            start(window, folder)
            told("awake")
            window.quits()
            told("asleep")


def stays_awake_when_the_portal_refuses(program, folder):
    """Like the portal's GTK back end outside of GNOME, which accepts the request and then answers with a failure."""
    with desktop_of(2, "refuses") as desktop:
        told = hears_of(desktop)
        told("ready")
        with driver.Window(program, folder, env={"DBUS_SYSTEM_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"]}) as window:
            choose_small_size(window)
            start(window, folder)
            told("awake 12 ", "locked sleep:idle Ondel Tarnwick A benchmark is running block")
            window.press("Stop")
            told("unlocked")
            window.find("Ready", "status bar")
            window.quits()


def asks_the_desktop_for_files(program, folder):
    """By its portal, with the window as parent, and by Qt's dialog where the portal fails."""
    (work := folder / "work 100% ü").mkdir()
    runs = [run_file(folder, index) for index in range(2)]
    with desktop_of(2, "files") as desktop, driver.Window(program, folder) as window:
        told = hears_of(desktop)
        told("ready")
        window.find("Ready to benchmark")
        window.settled()
        parent = f"x11:{int(window.id()):x}$" if isinstance(driver.display, driver.X11) else "wayland:.+"

        def asked(keys, **wanted):
            """Presses the keys, and waits for the desktop's dialog."""
            window.keys(keys)
            question = json.loads(told("asked").removeprefix("asked "))
            check(re.match(parent, question["parent"]) and question["modal"] is False, f"the dialog's parent in {question}")
            check(wanted.items() <= question.items(), f"asked {question}, not {wanted}")

        def folder_asked(at):
            asked("ctrl+o", method="OpenFile", directory=True, accept_label="Select", current_folder=[*os.fsencode(at), 0],
                  title="Choose a folder on the volume to test (a temporary working folder is written there and removed).")

        def answer(who, code, *uris):
            desktop.stdin.write(f"{who} {code} {json.dumps(uris)}\n".encode())
            told("said")
            call("ActivateAction", "nonsense", "[]")  # it is handled after the answer

        def falls_back():
            driver.focus("Choose a folder")
            window.find("Choose a folder on the volume to test (a temporary working folder is written there and removed).", "label")
            driver.display.press("Escape")
            window.until("the end of the dialog", lambda: not driver.windows("Choose a folder"))

        folder_asked(folder)
        answer("stranger", 0, "file:///usr")
        answer("answer", 0, "http://x/", "file://elsewhere/tmp", "file:///tmp%00", "%", "file:///" + "x" * 100000, work.as_uri())
        folder_asked(work)
        answer("answer", 0, "smb://server/share")
        folder_asked(work)
        answer("answer", 1)
        folder_asked(work)
        answer("answer", 2)  # nobody has seen a dialog that ends at once
        falls_back()
        folder_asked(work)
        desktop.stdin.write(b"nonsense\n")
        told("closed")
        falls_back()

        folder_asked(work)
        window.press("Help", "menu item")  # the window is alive
        window.find("Report a Problem…", "menu item")
        window.keys("Escape")
        time.sleep(0.5)
        answer("answer", 2)  # some desktops answer so when the dialog's window is closed
        window.settled()
        check(not driver.windows("Choose a folder"), "a dismissed dialog comes back")
        asked("ctrl+shift+o", method="OpenFile", multiple=True, title="Open", filters=[["Tarnwick runs", [[0, "*.tarnwickrun"]]]])
        answer("answer", 0, *[f"file:///{index}" for index in range(500)], *[run.as_uri() for run in runs])
        shows_run(window, 1)

        window.press("Share")
        window.press("Save As…", "menu item")
        question = json.loads(told("asked").removeprefix("asked "))
        check(question["method"] == "SaveFile" and question["current_name"].endswith(".png"), f"asked {question}")
        answer("answer", 0, (folder / "kept.png").as_uri())
        window.find("Saved as “kept.png”")
        folder_asked(work)
        window.keys("ctrl+o")
        told("closed", "asked")
        desktop.stdin.write(b"vanish\n")
        falls_back()
    with desktop_of(2, "files") as desktop, driver.Window(program, folder) as window:
        told = hears_of(desktop)
        told("ready")
        window.find("Ready to benchmark")
        window.keys("ctrl+o")
        told("asked")
        window.settled()  # Qt warns about an end during an animation
        window.quits()
        told("closed")


def follows_the_theme_without_a_portal(program, folder):
    """By its name, which the settings service of an X11 desktop tells."""
    def theme(name):
        (folder / "settings").write_text(f'Gtk/EnableAnimations 1\nNet/IconThemeName "dark"\nNet/ThemeName "{name}"\nXft/DPI 98304\n')

    def ground():
        return max(driver.display.pixels(window.id())[:3])

    theme("Adwaita-dark")
    with child("xsettingsd", "-c", folder / "settings", stderr=subprocess.DEVNULL) as service, driver.Window(program) as window:
        window.until("a dark window", lambda: ground() < 100)
        theme("Adwaita")
        service.send_signal(signal.SIGHUP)
        window.until("a light window", lambda: ground() > 200)
        theme("HighContrastInverse")
        service.send_signal(signal.SIGHUP)
        window.until("a window of high contrast", lambda: ground() == 0)
        service.kill()
        window.until("the light window back", lambda: ground() > 200)
        with child("xsettingsd", "-c", folder / "settings", stderr=subprocess.DEVNULL):
            window.until("the settings of a new service", lambda: ground() == 0)
            window.quits()


WAYS_TO_OPEN = dict(zip(("preparation", *TESTS), (os.O_WRONLY, os.O_WRONLY, os.O_RDONLY, os.O_RDONLY, os.O_RDWR)))


def is_in(phase, program, folder):
    """Exact for a stopped program: each phase opens the data file in a mode of its own, or works without it."""
    opened = []
    for file in pathlib.Path(f"/proc/{program}/fd").iterdir():
        with contextlib.suppress(FileNotFoundError):
            if os.readlink(file).endswith("/data.bin"):
                flags = pathlib.Path(f"/proc/{program}/fdinfo", file.name).read_text().split()[3]
                opened.append(int(flags, 8) & os.O_ACCMODE)
    if os.O_RDONLY in opened:
        opened.remove(os.O_RDONLY)  # held open during the whole run, for the file's identity
    if phase in WAYS_TO_OPEN:
        return opened == [WAYS_TO_OPEN[phase]]
    return not opened and any(folder.glob(".ondel-analyzer-*/fops/*" if phase == TESTS[4] else ".ondel-analyzer-*"))


def ends_in_every_phase(program, folder):
    """Some phases are short. The program is stopped in one; if it has left the phase by then, the run is repeated."""
    def asked_to_end_in(phase):
        with driver.Window(program, folder) as window:
            choose_small_size(window)
            # A write test before a short phase makes the working folder visible.
            wanted = {"preparation": {TESTS[1]}, "clean-up": set(TESTS)}.get(phase, {TESTS[0], phase})
            for test in set(TESTS) - wanted:
                window.press(test)
            window.press("Run Benchmark")
            window.until("the working folder", lambda: any(folder.glob(".ondel-analyzer-*")))
            if phase == "clean-up":
                window.press("Stop")
            while any(folder.glob(".ondel-analyzer-*")) and not is_in(phase, window.process.pid, folder):
                pass
            window.process.send_signal(signal.SIGSTOP)
            os.waitid(os.P_PID, window.process.pid, os.WSTOPPED | os.WNOWAIT)
            was_there = is_in(phase, window.process.pid, folder)
            window.process.send_signal(signal.SIGTERM)
            window.process.send_signal(signal.SIGCONT)
            check(window.end() == (0, ""), f"it does not end quietly in {phase}")
        nothing_left(folder)
        return was_there

    for phase in ("preparation", *TESTS, "clean-up"):
        while not asked_to_end_in(phase):
            print(f"  {phase} was over, once more", flush=True)


# They test X11 itself, or need the drag source or limits that do not work on other displays.
ONLY_ON_X11 = (starts_without_a_bus, ends_the_launch_feedback, notifies_the_desktop_of_runs, follows_the_theme_without_a_portal,
               leaves_nothing_without_a_display, takes_what_is_dropped)

if __name__ == "__main__":
    driver.enter_display()
    program, source, *only = sys.argv[1:]
    cases = (two_starts_give_one_window, many_runs_come_in_one_go, waits_for_a_stopped_process,
                 starts_without_a_bus, opens_what_it_is_given, does_what_its_entries_say, goes_by_menu,
                 ends_the_launch_feedback, asks_for_attention_behind_others, notifies_the_desktop_of_runs,
                 stays_awake_when_the_portal_refuses, asks_the_desktop_for_files,
                 follows_the_theme_without_a_portal, ends_in_every_phase,
                 leaves_nothing_without_a_display, takes_what_is_dropped)
    for case in driver.chosen(cases, only, [] if isinstance(driver.display, driver.X11) else ONLY_ON_X11):
        with driver.fast_folder() as name:
            case(program, pathlib.Path(name), *([source] if "source" in case.__code__.co_varnames else []))
